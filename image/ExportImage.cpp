#include "image/ExportImage.h"

#include <QFileInfo>
#include <QImage>
#include <QImageWriter>
#include <QString>
#include <fstream>

#include "dessin/Dessin.h"
#include "dessin/Surface.h"
#include "noyau/Erreurs.h"
#include "noyau/Fichiers.h"

namespace orva {

namespace {
void AjouteMot(std::vector<uint8_t>& o, uint16_t m) {
  o.push_back(static_cast<uint8_t>(m & 0xFF));
  o.push_back(static_cast<uint8_t>(m >> 8));
}
uint16_t Mot(int v) { return static_cast<uint16_t>(static_cast<uint32_t>(v)); }
}  // namespace

std::vector<uint8_t> EnTeteMetaFichierPlaceable(int largeur, int hauteur) {
  const uint16_t mots[10] = {0xCDD7, 0x9AC6, 0, 0, 0, Mot(largeur + 1), Mot(hauteur + 1), 144, 0, 0};
  std::vector<uint8_t> o;
  uint16_t somme = 0;
  for (uint16_t m : mots) {
    AjouteMot(o, m);
    somme ^= m;
  }
  AjouteMot(o, somme);
  return o;
}

HandleMeta CopieMetaFichierAvecEtendue(HandleMeta metaFichier, int largeur, int hauteur) {
  if (GetMetaFileBits(metaFichier).empty()) return 0;
  Contexte* copie = CreateMetaFile();
  copie->SetWindowExt(largeur, hauteur);
  copie->SetMapMode(ModeAnisotrope);
  PlayMetaFile(copie, metaFichier);
  return CloseMetaFile(copie);
}

void EcritMetaFichier(const std::string& nom, HandleMeta metaFichier, int largeur, int hauteur) {
  // Nothing is reported: a file that cannot be written stays as it was. Without a metafile the
  // file is made empty.
  try {
    EcritFichierSur(nom, [&](std::ostream& f) {
      if (metaFichier == 0 || GetMetaFileBits(metaFichier).empty()) return;
      // The header.
      std::vector<uint8_t> entete = EnTeteMetaFichierPlaceable(largeur, hauteur);
      f.write(reinterpret_cast<const char*>(entete.data()), static_cast<std::streamsize>(entete.size()));
      // The copy that carries the extent, and its bytes when there are some.
      HandleMeta copie = CopieMetaFichierAvecEtendue(metaFichier, largeur, hauteur);
      std::vector<uint8_t> octets = GetMetaFileBits(copie);
      DeleteMetaFile(copie);
      if (!octets.empty()) f.write(reinterpret_cast<const char*>(octets.data()), static_cast<std::streamsize>(octets.size()));
    });
  } catch (const ErreurExecution&) {
  }
}

bool EcritImageFichier(const std::string& chemin) {
  const QImage& image = Ima.Image();
  if (image.isNull()) return false;
  QString nom = QString::fromStdString(chemin);
  QByteArray format = QFileInfo(nom).suffix().toLower().toLatin1();
  if (format.isEmpty() || !QImageWriter::supportedImageFormats().contains(format)) return false;
  return EcritImage(image, chemin, format.constData());
}

bool EcritMetaFichierScenario(const std::string& chemin, int largeur, int hauteur) {
  if (MetaFichier == 0 || GetMetaFileBits(MetaFichier).empty()) return false;
  EcritMetaFichier(chemin, MetaFichier, largeur, hauteur);
  std::ifstream f(chemin, std::ios::binary | std::ios::ate);
  return f && f.tellg() > 22;
}

}  // namespace orva
