#include "dessin/Dessin.h"

#include <vector>

#include "noyau/Conversions.h"
#include "noyau/Orva.h"
#include "noyau/Plateforme.h"
#include "noyau/Registre.h"

namespace orva {

namespace {

int32_t Entier(double v) { return CLng(v); }

// Step 1 of the metafile routines: the pen and brush of the previous routine go now.
void SupprimeObjetsMeta() {
  if (StyloMeta != 0) DeleteObject(StyloMeta);
  if (BrosseMeta != 0) DeleteObject(BrosseMeta);
}

// Step 3: both selected, the old ones kept, only when both were made.
void SelectionneObjetsMeta() {
  if (StyloMeta != 0 && BrosseMeta != 0 && ContexteMeta) {
    AncienStyloMeta = ContexteMeta->SelectObject(StyloMeta);
    AncienneBrosseMeta = ContexteMeta->SelectObject(BrosseMeta);
  }
}

// Step 5: the old pen and brush back, each when not 0.
void RemetObjetsMeta() {
  if (!ContexteMeta) return;
  if (AncienStyloMeta != 0) ContexteMeta->SelectObject(AncienStyloMeta);
  if (AncienneBrosseMeta != 0) ContexteMeta->SelectObject(AncienneBrosseMeta);
}

void TraceRondMetaArrondi(double& x, double& y, double r, Couleur remplissage, Couleur couleurStylo, int largeur) {
  SupprimeObjetsMeta();
  StyloMeta = CreatePen(StyloPlein, largeur, couleurStylo);
  BrosseMeta = CreateSolidBrush(remplissage);
  SelectionneObjetsMeta();
  x = CLng(x);
  y = CLng(y);
  if (ContexteMeta) ContexteMeta->Ellipse(Entier(x + r), Entier(y + r), Entier(x - r), Entier(y - r));
  RemetObjetsMeta();
}

}  // namespace

void TraceSegmentIma(double x1, double y1, double x2, double y2) {
  PointsSegment[0] = {Entier(x1), Entier(y1)};
  PointsSegment[1] = {Entier(x2), Entier(y2)};
  Ima.hDC()->Polyline(std::vector<PointI>(PointsSegment.begin(), PointsSegment.end()));
}

void TraceRondIma(double x, double y, double r) {
  Ima.hDC()->Ellipse(Entier(Int(x + r)), Entier(Int(y + r)), Entier(Int(x - r)), Entier(Int(y - r)));
}

void TraceSegmentMeta(double x1, double y1, double x2, double y2, Couleur couleur, int largeur) {
  SupprimeObjetsMeta();
  StyloMeta = CreatePen(StyloPlein, largeur, couleur);
  BrosseMeta = CreateSolidBrush(QBColor(15));
  SelectionneObjetsMeta();
  if (ContexteMeta) {
    ContexteMeta->MoveToEx(Entier(x1), Entier(y1));
    ContexteMeta->LineTo(Entier(x2), Entier(y2));
  }
  RemetObjetsMeta();
}

void TraceRondMeta(double& x, double& y, double r, Couleur remplissage, Couleur couleurStylo, int largeur) {
  TraceRondMetaArrondi(x, y, r, remplissage, couleurStylo, largeur);
}

void TraceRondMeta(float& x, float& y, double r, Couleur remplissage, Couleur couleurStylo, int largeur) {
  double dx = x, dy = y;
  TraceRondMetaArrondi(dx, dy, r, remplissage, couleurStylo, largeur);
  x = static_cast<float>(dx);
  y = static_cast<float>(dy);
}

void TraceTriangleMeta() {
  SupprimeObjetsMeta();
  StyloMeta = CreatePen(StyloNul, 0, 0);
  BrosseMeta = CreateSolidBrush(Ima.FillColor);
  SelectionneObjetsMeta();
  if (ContexteMeta) ContexteMeta->Polygon(std::vector<PointI>(PointsTriangle.begin(), PointsTriangle.end()));
  RemetObjetsMeta();
}

void EcritTexteMeta(std::string& texte, double x, double y) {
  // 1. The visible end: the text stops before its first two blanks in a row.
  std::size_t fin = texte.find("  ");
  if (fin != std::string::npos) texte.resize(fin);
  // 2. The font in use on Ima: the stock font selected returns it.
  Contexte* ima = Ima.hDC();
  Objet policeIma = ima->SelectObject(ima->GetStockObject(PoliceSysteme));
  DescriptionPolice d;
  GetObjectPolice(policeIma, d);
  ima->SelectObject(policeIma);
  // 3. The same font in the metafile, for this text only.
  Objet police = CreateFontIndirect(d);
  if (ContexteMeta) {
    Objet ancienne = ContexteMeta->SelectObject(police);
    ContexteMeta->TextOut(Entier(x), Entier(y), texte);
    ContexteMeta->SelectObject(ancienne);
  }
  DeleteObject(police);
}

void OuvreMetaFichier() {
  ContexteMeta = CreateMetaFile();
  if (MetaFichier != 0) {
    PlayMetaFile(ContexteMeta, MetaFichier);
    DeleteMetaFile(MetaFichier);
    MetaFichier = 0;
  }
}

void FermeMetaFichier() {
  MetaFichier = CloseMetaFile(ContexteMeta);
  ContexteMeta = ImaVec.hDC();
  if (MetaFichier != 0) {
    PlayMetaFile(ImaVec.hDC(), MetaFichier);
    ImaVec.Refresh();
  }
}

void MontreMetaFichierEnCours(LecteurMeta& imaVec) {
  const auto* enregistrement = dynamic_cast<EnregistreurMeta*>(ContexteMeta);
  if (!enregistrement) {
    FermeMetaFichier();
    OuvreMetaFichier();
    return;
  }
  imaVec.JoueSuite(*enregistrement);
  PasseNumeroMeta();
  ImaVec.Refresh();
}

bool ImageVectorielle() {
  EntreeMenu* m = Orva.Menu("menImageVectorielle");
  return m && m->Checked;
}

bool DebutCouche() {
  bool vectorielle = ImageVectorielle();
  if (vectorielle) {
    MetaFichierFerme = Faux;
    OuvreMetaFichier();
  }
  return vectorielle;
}

void FinCouche() {
  if (ImageVectorielle()) {
    MetaFichierFerme = Vrai;
    FermeMetaFichier();
  }
  Ima.Refresh();
}

void EffaceImages() {
  Ima.Cls();
  ImaVec.Cls();
  if (MetaFichier != 0) {
    DeleteMetaFile(MetaFichier);
    MetaFichier = 0;
  }
}

void menImageVectorielle() {
  EntreeMenu* m = Orva.Menu("menImageVectorielle");
  if (!m) return;
  m->Checked = !m->Checked;
  Orva.StatusBar[4] = m->Checked ? "MétaFichier " : "Bitmap ";
  // The resize routine of the main window: the picture that fits the mode in front.
  ImaVec.Visible = m->Checked;
  Ima.Visible = !m->Checked;
}

void menEffaceImage() { EffaceImages(); }

namespace {

void EnregistreSurface(const std::string& nom, SurfaceImage& s) {
  EnregistreReglage(nom + ".Width", s.Width);
  EnregistreReglage(nom + ".Height", s.Height);
  EnregistreReglage(nom + ".ScaleWidth", Reglage{[&s] { return EnTexte(s.ScaleWidth()); }, {}});
  EnregistreReglage(nom + ".ScaleHeight", Reglage{[&s] { return EnTexte(s.ScaleHeight()); }, {}});
  EnregistreReglage(nom + ".ForeColor", s.ForeColor);
  EnregistreReglage(nom + ".BackColor", s.BackColor);
  EnregistreReglage(nom + ".FillColor", s.FillColor);
  EnregistreReglage(nom + ".FillStyle", s.FillStyle);
  EnregistreReglage(nom + ".DrawWidth", s.DrawWidth);
  EnregistreReglage(nom + ".DrawStyle", s.DrawStyle);
  EnregistreReglage(nom + ".DrawMode", s.DrawMode);
  EnregistreReglage(nom + ".AutoRedraw", s.AutoRedraw);
  EnregistreReglage(nom + ".Visible", s.Visible);
  EnregistreReglage(nom + ".FontName", s.Font.Nom);
  EnregistreReglage(nom + ".FontUnderline", s.Font.Souligne);
  EnregistreReglage(nom + ".FontStrikethru", s.Font.Barre);
}

}  // namespace

void EnregistreDessin() {
  // The state before start-up.
  if (StyloMeta != 0) DeleteObject(StyloMeta);
  if (BrosseMeta != 0) DeleteObject(BrosseMeta);
  MetaFichier = 0;
  ContexteMeta = nullptr;
  StyloMeta = BrosseMeta = AncienStyloMeta = AncienneBrosseMeta = 0;
  CompteurArcsMeta = 0;
  PointsSegment = {};
  PointsTriangle = {};
  LibereMetaFichiers();
  Ima.Reinitialise();
  ImaVec.Reinitialise();

  EnregistreReglage("CompteurArcsMeta", CompteurArcsMeta);
  EnregistreReglage("MetaFichier", MetaFichier);
  // Size in bytes of the present metafile (0 when there is none).
  EnregistreReglage("TailleMetaFichier",
                    Reglage{[] { return EnTexte(static_cast<long>(GetMetaFileBits(MetaFichier).size())); }, {}});
  EnregistreSurface("Ima", Ima);
  EnregistreSurface("ImaVec", ImaVec);
}

}  // namespace orva
