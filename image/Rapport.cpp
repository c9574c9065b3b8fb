#include "image/Rapport.h"

#include <QFile>
#include <QFont>
#include <QPainter>
#include <QString>
#include <fstream>

#include "dessin/ContexteRaster.h"
#include "dessin/Surface.h"
#include "image/Odt.h"
#include "noyau/Chaines.h"
#include "noyau/Conversions.h"
#include "noyau/Def.h"
#include "noyau/Erreurs.h"
#include "noyau/Fichiers.h"
#include "noyau/Plateforme.h"
#include "noyau/Registre.h"
#include "noyau/Valeurs.h"

namespace orva {

namespace {

const char* const kMacro = "RéduireImage94";

std::string Guillemets(const std::string& s) { return "\"" + s + "\""; }

void Journal(const std::string& ligne) {
  NbJournalRapport += 1;
  JournalRapport.ReDimPreserve(NbJournalRapport);
  JournalRapport[NbJournalRapport] = ligne;
}

// The report's name as an OpenDocument text: its extension becomes .odt.
std::string NomOdt(const std::string& nom) {
  const std::string court = NomCourt(nom);
  const std::size_t point = court.rfind('.');
  return (point == std::string::npos ? court : court.substr(0, point)) + ".odt";
}

// What goes wrong in the making of a document stops the report with this box.
struct ErreurRapport {
  std::string texte;
};

// A document being made: the template copied to a temporary file beside the report, its
// pictures put in, then renamed over the report.
class Document {
 public:
  Document(const std::string& modele, const std::string& rapport) : rapport_(rapport), temporaire_(rapport + ".orva-tmp") {
    if (!ExisteChemin(modele)) throw ErreurRapport{"Le modèle " + modele + " est introuvable."};
    QFile::remove(QString::fromStdString(temporaire_));
    if (!QFile::copy(QString::fromStdString(modele), QString::fromStdString(temporaire_)))
      throw ErreurRapport{"Le modèle " + modele + " ne peut pas être copié."};
    QFile(QString::fromStdString(temporaire_)).setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup |
                                                              QFile::ReadOther);
  }
  ~Document() { QFile::remove(QString::fromStdString(temporaire_)); }
  Document(const Document&) = delete;
  Document& operator=(const Document&) = delete;
  void Image(const std::string& signet, const QImage& image) {
    const std::string erreur = InsereImageOdt(temporaire_, signet, image);
    if (!erreur.empty()) throw ErreurRapport{erreur};
  }
  // The finished document takes the report's name whole, or the old report stays.
  void Enregistre() {
    QFile fait(QString::fromStdString(temporaire_));
    if (!fait.open(QIODevice::ReadOnly)) throw ErreurRapport{"Le rapport " + rapport_ + " ne peut pas être écrit."};
    const QByteArray octets = fait.readAll();
    try {
      EcritFichierSur(rapport_, [&](std::ostream& f) { f.write(octets.constData(), octets.size()); });
    } catch (const ErreurExecution&) {
      throw ErreurRapport{"Le rapport " + rapport_ + " ne peut pas être écrit."};
    }
  }

 private:
  std::string rapport_, temporaire_;
};

// The picture of the view as the word processor would receive it.
QImage ImageVue() { return Ima.Image().convertToFormat(QImage::Format_RGB32); }

// The steps of one template: open it, save it under the report's name, then the picture at
// "Image" and, when asked, the legend at "Légende", each followed by the macro that reduces it.
void Modele(const std::string& cartes, const std::string& modele, const std::string& rapport, bool legende,
            bool secondeForme) {
  const std::string chemin = cartes + "/" + modele;
  Journal((secondeForme ? "[FichierOuvrir .Nom =" : "[FichierOuvrir .Nom=") + Guillemets(chemin) + "]");
  Document d(chemin, rapport);
  Journal("[FichierEnregistrerSous .Nom=" + Guillemets(rapport) + "]");
  Journal("LinkTopic Winword|" + rapport);
  Journal("LinkItem Image");
  Journal("LinkPoke");
  Journal("[EditionSignet .Nom =" + Guillemets("Image") + ", .Atteindre]");
  d.Image("Image", ImageVue());
  Journal("[OutilsMacro .Nom =" + Guillemets(kMacro) + ",.Exécuter]");
  if (legende) {
    Journal("[EditionSignet .Nom =" + Guillemets("Légende") + ", .Atteindre]");
    Journal("LinkPoke");
    d.Image("Légende", ImageLegende());
    Journal("[OutilsMacro .Nom =" + Guillemets(kMacro) + ",.Exécuter]");
  }
  d.Enregistre();
}

void EcritJournal(const std::string& rapport) {
  EcritFichierSur(rapport.substr(0, rapport.size() - 4) + ".journal", [](std::ostream& f) {
    for (long i = 1; i <= NbJournalRapport; ++i) EcritLigne(f, JournalRapport[i]);
  });
}

}  // namespace

QImage ImageLegende() {
  AssureApplicationGraphique();
  const int n = std::max<int>(NbClasses, 0);
  QImage image(420, 36 + 26 * n, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter p(&image);
  QFont f("Liberation Sans");
  f.setPixelSize(15);
  p.setFont(f);
  p.setPen(Qt::black);
  p.drawText(10, 22, QString::fromStdString(TypeClasses));
  for (int c = 1; c <= n; ++c) {
    const ClasseVal& k = Classes[c];
    const int y = 36 + 26 * (c - 1);
    p.setBrush(QColor::fromRgb(VersRgbQt(k.Couleur)));
    p.drawRect(10, y, 40, 18);
    p.drawText(62, y + 15, QString::fromStdString(CStr(k.Min) + " à " + CStr(k.Max)));
  }
  return image;
}

void RapportTraitementTexte() {
  const std::string cartes = RepertoireRacine + "/data/cartes";
  ChDir(cartes);
  // The number of the series, from the value file's name; the kind of the classes.
  const long longueur = Len(FichierNoeudVal1);
  const double numero = Val(Mid(FichierNoeudVal1, longueur - 6, 3));
  const bool absolues = TypeClasses == "Différences absolues";
  const bool differences = absolues || TypeClasses == "Différences relatives";
  const std::string genre = Mid(TypeClasses, 13, absolues ? 8 : 9);
  const std::string modeles = ExisteRepertoire(RepertoireCartes) ? RepertoireCartes : cartes;
  const std::string rapport = modeles + "/" + NomOdt(FichierRapport);
  Journal("' " + NomCourt(FichierNoeudVal1) + " : " + CStr(numero) + (differences ? ", différences " + genre : ""));
  try {
    if (numero == PremierNumeroSerie && !RapportEnCours) {
      // 1. The first picture of a series starts the report on its first template.
      Journal("WinWord Carte_.doc");
      RapportEnCours = Vrai;
      Modele(modeles, "Carte_.odt", rapport, false, false);
    } else if (TypeClasses == "Référence") {
      // 5. The reference map and its legend end the series.
      Modele(modeles, "IetLref.odt", rapport, true, true);
      RapportEnCours = Faux;
    } else if (differences) {
      // 4. A map of differences, with the legend of its classes.
      Modele(modeles, "Dif.odt", rapport, true, false);
    } else {
      // 3. Any other map.
      Modele(modeles, "Cartem.odt", rapport, false, false);
    }
  } catch (const ErreurRapport& e) {
    EcritJournal(rapport);
    Message(e.texte, Icone::Exclamation, "Erreur DDE");
    return;
  }
  EcritJournal(rapport);
}

bool EcritModelesRapport(const std::string& dossier) {
  return CreeModeleOdt(dossier + "/Carte_.odt", "Carte", false) &&
         CreeModeleOdt(dossier + "/Cartem.odt", "Carte", false) &&
         CreeModeleOdt(dossier + "/Dif.odt", "Carte des différences", true) &&
         CreeModeleOdt(dossier + "/IetLref.odt", "Image et légende de référence", true);
}

void EnregistreRapport() {
  PremierNumeroSerie = 1;
  RapportEnCours = Faux;
  JournalRapport.ReDim(0, 0);
  NbJournalRapport = 0;
  EnregistreReglage("PremierNumeroSerie", PremierNumeroSerie);
  EnregistreReglage("RapportEnCours", RapportEnCours);
  EnregistreReglage("NbJournalRapport", NbJournalRapport);
  EnregistreTableValeurs("JournalRapport", JournalRapport);
}

}  // namespace orva
