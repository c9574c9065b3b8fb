#include "image/Vectoriel.h"

#include <QBuffer>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QString>
#include <QSvgGenerator>
#include <optional>

#include "dessin/ContexteMeta.h"
#include "dessin/ContexteRaster.h"
#include "dessin/Dessin.h"
#include "dessin/Surface.h"
#include "image/ExportImage.h"
#include "noyau/Chaines.h"
#include "noyau/Def.h"
#include "noyau/Erreurs.h"
#include "noyau/Fichiers.h"
#include "noyau/Plateforme.h"

namespace orva {

namespace {

bool DessinEnregistre() { return MetaFichier != 0 && !GetMetaFileBits(MetaFichier).empty(); }

// Plays the recording with a painter on the device, antialiased, over the background of the
// picture: the device's pixels are those of the picture.
bool Joue(QPaintDevice& appareil) {
  QPainter peintre;
  if (!peintre.begin(&appareil)) return false;
  peintre.fillRect(QRect(0, 0, static_cast<int>(ImaVec.ScaleWidth()), static_cast<int>(ImaVec.ScaleHeight())),
                   QColor::fromRgb(VersRgbQt(ImaVec.BackColor)));
  peintre.setRenderHint(QPainter::Antialiasing, true);
  peintre.setRenderHint(QPainter::TextAntialiasing, true);
  ContexteRaster contexte(&peintre);
  const bool joue = PlayMetaFile(&contexte, MetaFichier);
  return peintre.end() && joue;
}

// Renders into memory, then writes the bytes whole or not at all: a failed write leaves any
// existing file as it was.
template <class Ecriture>
bool EcritPuisRenomme(const std::string& chemin, Ecriture&& ecriture) {
  QBuffer tampon;
  tampon.open(QIODevice::WriteOnly);
  if (!ecriture(tampon) || tampon.data().isEmpty()) return false;
  const QByteArray octets = tampon.data();
  try {
    EcritFichierSur(chemin, [&](std::ostream& f) { f.write(octets.constData(), octets.size()); });
  } catch (const ErreurExecution&) {
    return false;
  }
  return true;
}

void EnregistreVectoriel(const char* titre, const char* filtre, const char* nom, bool (*ecrit)(const std::string&)) {
  if (!DessinEnregistre()) {
    Message("Le Metafichier n'est pas défini");
    return;
  }
  DemandeFichier d;
  d.Titre = titre;
  d.Filtre = filtre;
  d.Nom = nom;
  d.Dossier = RepertoireImages;
  d.Sauvegarde = true;
  d.ConfirmeEcrasement = true;
  std::optional<std::string> r = Port().DialogueFichier(d);
  if (!r) return;
  PointeurOccupe occupe;
  if (!ecrit(*r)) Leve(ErrChemin);
}

}  // namespace

bool EcritSVG(const std::string& chemin) {
  if (!DessinEnregistre()) return false;
  const int largeur = static_cast<int>(ImaVec.ScaleWidth()), hauteur = static_cast<int>(ImaVec.ScaleHeight());
  return EcritPuisRenomme(chemin, [&](QBuffer& tampon) {
    QSvgGenerator svg;
    svg.setOutputDevice(&tampon);
    svg.setSize(QSize(largeur, hauteur));
    svg.setViewBox(QRect(0, 0, largeur, hauteur));
    svg.setResolution(96);
    svg.setTitle("ORVA");
    svg.setDescription(QString::fromStdString(NomCourt(FichierNoeuds) + " " + NomCourt(FichierArcs)));
    return Joue(svg);
  });
}

bool EcritPDF(const std::string& chemin) {
  if (!DessinEnregistre()) return false;
  return EcritPuisRenomme(chemin, [&](QBuffer& tampon) {
    QPdfWriter pdf(&tampon);
    pdf.setCreator("ORVA");
    pdf.setTitle(QString::fromStdString(NomCourt(FichierNoeuds)));
    pdf.setResolution(96);
    pdf.setPageLayout(QPageLayout(QPageSize(QSizeF(ImaVec.Width, ImaVec.Height), QPageSize::Millimeter),
                                  QPageLayout::Portrait, QMarginsF(0, 0, 0, 0)));
    return Joue(pdf);
  });
}

bool EcritImageScenario(const std::string& chemin) {
  const std::string extension = LCase(Right(chemin, 4));
  if (extension == ".svg") return EcritSVG(chemin);
  if (extension == ".pdf") return EcritPDF(chemin);
  return EcritImageFichier(chemin);
}

void menEnregistreSVG() {
  EnregistreVectoriel("Enregistrer l'image en SVG", "Tous fichiers (*.*)|*.*|Image SVG (*.svg)|*.svg", "Image1.svg",
                      EcritSVG);
}

void menEnregistrePDF() {
  EnregistreVectoriel("Enregistrer l'image en PDF", "Tous fichiers (*.*)|*.*|Document PDF (*.pdf)|*.pdf", "Image1.pdf",
                      EcritPDF);
}

}  // namespace orva
