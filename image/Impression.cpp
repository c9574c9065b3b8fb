#include "image/Impression.h"

#include <QBuffer>
#include <QImage>
#include <optional>
#include <string>

#include "dessin/ContexteMeta.h"
#include "dessin/ContexteRaster.h"
#include "dessin/Dessin.h"
#include "dessin/Surface.h"
#include "image/ExportImage.h"
#include "noyau/Def.h"
#include "noyau/Erreurs.h"
#include "noyau/Fichiers.h"
#include "noyau/Orva.h"
#include "noyau/Plateforme.h"

namespace orva {

namespace {

bool Vectorielle() {
  const EntreeMenu* m = Orva.Menu("menImageVectorielle");
  return m && m->Checked;
}

}  // namespace

void menImprimeImage() {
  // 1. The folder of images must exist, even for the metafile whose dialog could go anywhere.
  if (!ExisteRepertoire(RepertoireImages + "/")) {
    Message("Il est nécéssaire de créer le répertoire " + RepertoireImages + "\ret/ou d'y placer un fichier quelconque.",
            Icone::Information);
    return;
  }
  // 2.
  if (!Ima.AutoRedraw) {
    Message("Mettez la propriété AutoRedraw sur l'image (Menu Options-Image-Propriété AutoRedraw) avant de "
            "sauvegarder.   La sauvegarde de l'image enregistre tous les dessins faits aprés la validation de "
            "AutoRedraw.",
            Icone::Arret, "Pas d'AutoRedraw");
    return;
  }
  PointeurOccupe occupe;
  // 3. The recording as a placeable metafile.
  if (Vectorielle()) {
    if (MetaFichier == 0) {
      Message("Le Metafichier n'est pas défini");
      return;
    }
    DemandeFichier d;
    d.Titre = "Enregistrer le MetaFichier";
    d.Filtre = "Tous fichiers (*.*)|*.*|Windows MetaFile (*.wmf)|*.wmf";
    d.Nom = "Image1.wmf";
    d.Dossier = RepertoireImages;
    d.Sauvegarde = true;
    d.ConfirmeEcrasement = true;
    std::optional<std::string> r = Port().DialogueFichier(d);
    if (r)
      EcritMetaFichier(*r, MetaFichier, static_cast<int>(ImaVec.ScaleWidth()), static_cast<int>(ImaVec.ScaleHeight()));
    return;
  }
  // 4. The bitmap, replaced without a question, handed to the desktop's opener.
  const std::string fichier = RepertoireImages + "/Image.bmp";
  if (!EcritImageFichier(fichier)) Leve(ErrChemin);
  ChDir(RepertoireImages);
  Port().LanceProgramme("xdg-open \"" + fichier + "\"");
  ChDir(RepertoireRacine + "/data/");
}

std::vector<uint8_t> OctetsMetaFichierAvecEtendue() {
  if (MetaFichier == 0) return {};
  const HandleMeta copie = CopieMetaFichierAvecEtendue(MetaFichier, static_cast<int>(ImaVec.ScaleWidth()),
                                                       static_cast<int>(ImaVec.ScaleHeight()));
  std::vector<uint8_t> octets = GetMetaFileBits(copie);
  DeleteMetaFile(copie);
  return octets;
}

std::vector<uint8_t> PngDuMetaFichier() {
  if (MetaFichier == 0) return {};
  AssureApplicationGraphique();
  QImage image(static_cast<int>(ImaVec.ScaleWidth()), static_cast<int>(ImaVec.ScaleHeight()), QImage::Format_RGB32);
  if (image.isNull()) return {};
  image.fill(Qt::white);
  ContexteRaster contexte(&image);
  PlayMetaFile(&contexte, MetaFichier);
  QByteArray png;
  QBuffer tampon(&png);
  tampon.open(QIODevice::WriteOnly);
  image.save(&tampon, "PNG");
  return std::vector<uint8_t>(png.begin(), png.end());
}

void CopieMetaFichier() { Port().PressePapiers(OctetsMetaFichierAvecEtendue(), PngDuMetaFichier()); }

void menCopieImage() {
  if (MetaFichier == 0) {
    Message("Il n'y a pas de metafile à copier");
    return;
  }
  CopieMetaFichier();
}

}  // namespace orva
