#include "ihm/PortQt.h"

#include <QApplication>
#include <QClipboard>
#include <QColorDialog>
#include <QFileDialog>
#include <QDesktopServices>
#include <QFileInfo>
#include <QImage>
#include <QInputDialog>
#include <QTimer>
#include <QUrl>
#include <QMessageBox>
#include <QMimeData>
#include <QProcess>
#include <QPushButton>

#include "ihm/BoitePolice.h"
#include "ihm/DialogueQt.h"
#include "noyau/Controles.h"
#include "noyau/Erreurs.h"
#include "noyau/Fichiers.h"

namespace orva {

namespace {
QString Q(const std::string& s) { return QString::fromStdString(s); }

// "Libellé|motif|Libellé|motif" -> "Libellé (motif);;..."
QString FiltreQt(const std::string& filtre) {
  QStringList parts = Q(filtre).split('|');
  QStringList r;
  for (int i = 0; i + 1 < parts.size(); i += 2) r << parts[i] + " (" + QString(parts[i + 1]).replace(';', ' ') + ")";
  return r.join(";;");
}
}  // namespace

Reponse PortQt::MsgBox(const std::string& texte, Boutons boutons, Icone icone, const std::string& titre, int defaut) {
  QMessageBox b(parent_);
  b.setWindowTitle(Q(titre));
  b.setText(Q(texte).replace("\r\n", "\n").replace('\r', '\n'));
  switch (icone) {
    case Icone::Aucune: b.setIcon(QMessageBox::NoIcon); break;
    case Icone::Information: b.setIcon(QMessageBox::Information); break;
    case Icone::Exclamation: b.setIcon(QMessageBox::Warning); break;
    case Icone::Question: b.setIcon(QMessageBox::Question); break;
    case Icone::Arret: b.setIcon(QMessageBox::Critical); break;
  }
  std::vector<std::pair<QAbstractButton*, Reponse>> liste;
  auto ajoute = [&](const char* texteBouton, QMessageBox::ButtonRole role, Reponse r) {
    liste.emplace_back(b.addButton(QString::fromUtf8(texteBouton), role), r);
  };
  switch (boutons) {
    case Boutons::OK: ajoute("OK", QMessageBox::AcceptRole, Reponse::OK); break;
    case Boutons::OKAnnuler:
      ajoute("OK", QMessageBox::AcceptRole, Reponse::OK);
      ajoute("Annuler", QMessageBox::RejectRole, Reponse::Annuler);
      break;
    case Boutons::OuiNon:
      ajoute("&Oui", QMessageBox::YesRole, Reponse::Oui);
      ajoute("&Non", QMessageBox::NoRole, Reponse::Non);
      break;
    case Boutons::OuiNonAnnuler:
      ajoute("&Oui", QMessageBox::YesRole, Reponse::Oui);
      ajoute("&Non", QMessageBox::NoRole, Reponse::Non);
      ajoute("Annuler", QMessageBox::RejectRole, Reponse::Annuler);
      break;
  }
  if (defaut >= 1 && defaut <= static_cast<int>(liste.size()))
    b.setDefaultButton(qobject_cast<QPushButton*>(liste[static_cast<std::size_t>(defaut - 1)].first));
  b.exec();
  for (auto& [bouton, r] : liste)
    if (b.clickedButton() == bouton) return r;
  // Closed by the window's button: the box's escape answer.
  return liste.size() > 1 ? liste.back().second : liste.front().second;
}

std::optional<std::string> PortQt::InputBox(const std::string& invite, const std::string& titre, const std::string& defaut) {
  bool ok = false;
  QString r = QInputDialog::getText(parent_, Q(titre), Q(invite), QLineEdit::Normal, Q(defaut), &ok);
  if (!ok) return std::nullopt;
  return r.toStdString();
}

std::optional<std::string> PortQt::DialogueFichier(const DemandeFichier& d) {
  QString r;
  QString depart = Q(d.Dossier.empty() ? RepertoireCourant() : d.Dossier);
  if (d.Dossiers) {
    r = QFileDialog::getExistingDirectory(parent_, Q(d.Titre), depart);
  } else if (d.Sauvegarde) {
    QFileDialog::Options o;
    if (!d.ConfirmeEcrasement) o |= QFileDialog::DontConfirmOverwrite;
    r = QFileDialog::getSaveFileName(parent_, Q(d.Titre), depart + "/" + Q(NomCourt(d.Nom)), FiltreQt(d.Filtre), nullptr, o);
  } else {
    r = QFileDialog::getOpenFileName(parent_, Q(d.Titre), depart + "/" + Q(NomCourt(d.Nom)), FiltreQt(d.Filtre));
  }
  if (r.isEmpty()) return std::nullopt;
  std::string chemin = r.toStdString();
  // As on the system's platform, the chosen file's folder becomes the current folder.
  try {
    ChDir(d.Dossiers ? chemin : DossierDe(chemin));
  } catch (const ErreurExecution&) {
  }
  return chemin;
}

std::optional<int32_t> PortQt::DialogueCouleur(int32_t initiale) {
  QColor c = QColorDialog::getColor(QColor(initiale & 0xFF, (initiale >> 8) & 0xFF, (initiale >> 16) & 0xFF), parent_);
  if (!c.isValid()) return std::nullopt;
  return c.red() | (c.green() << 8) | (c.blue() << 16);
}

std::optional<Police> PortQt::DialoguePolice(const Police& initiale) {
  BoitePolice boite(initiale, parent_);
  if (boite.exec() != QDialog::Accepted) return std::nullopt;
  return boite.Choix();
}

void PortQt::MontreDialogue(const std::string& nom, bool modal) {
  if (nom == "Orva") return;  // the main window shows itself
  Dialogue* etat = ChercheDialogue(nom);
  if (!etat) return;
  // Dialogs are loaded once, before their first showing, and stay loaded.
  if (charges_.insert(nom).second && etat->Load) etat->Load();
  if (modal && modaux_.count(nom)) throw ErreurExecution(400, "Feuille déjà affichée ; affichage modal impossible");
  DialogueQt* d = DialogueDe(nom, parent_);
  if (!d) return;
  etat->Visible = true;
  d->Synchronise();
  if (!modal) {
    d->setModal(false);
    d->show();
    d->raise();
    d->activateWindow();
    return;
  }
  modaux_.insert(nom);
  // Runs until a command of the dialog hides it.
  while (etat->Visible && !quitte_) d->exec();
  modaux_.erase(nom);
  if (quitte_) throw ErreurExecution(ErrAnnulation, "");
}

void PortQt::CacheDialogue(const std::string& nom) {
  DialogueQt* d = DialogueDe(nom, parent_);
  if (d && d->isVisible()) d->done(0);
}

void PortQt::Sablier(bool occupe) {
  if (occupe) QApplication::setOverrideCursor(Qt::WaitCursor);
  else while (QApplication::overrideCursor()) QApplication::restoreOverrideCursor();
}

void PortQt::DoEvents() {
  // The window follows the state (the menus suspended, the picture so far) a few times a second.
  if (!horloge_.isValid() || horloge_.elapsed() > 100) {
    if (Repeint) Repeint("Orva");
    horloge_.restart();
  }
  QApplication::processEvents();
}

void PortQt::Rafraichit(const std::string& controle) {
  // A dialog, or a picture of a dialog ("AspectVisuelNoeuds.Picture1"): the dialog follows its
  // state and paints at once.
  const std::string dialogue = controle.substr(0, controle.find('.'));
  if (dialogue != "Orva" && ChercheDialogue(dialogue)) {
    if (DialogueQt* d = DialogueDe(dialogue, parent_)) {
      d->Synchronise();
      if (d->isVisible()) {
        QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        d->repaint();
      }
    }
    return;
  }
  if (controle == "Ima" || controle == "ImaVec") {
    // A picture refreshed at every node of a long pass is painted a few times a second; the last
    // refresh held back is painted a moment later, from the event loop.
    if (horlogeImage_.isValid() && horlogeImage_.elapsed() < 40) {
      if (!imageEnAttente_) {
        imageEnAttente_ = true;
        QTimer::singleShot(50, &contexte_, [this, controle] {
          imageEnAttente_ = false;
          horlogeImage_.restart();
          if (Repeint) Repeint(controle);
        });
      }
      return;
    }
    horlogeImage_.restart();
  }
  if (Repeint) Repeint(controle);
}

void PortQt::LanceProgramme(const std::string& ligne) {
  QStringList args = QProcess::splitCommand(Q(ligne));
  if (args.isEmpty()) return;
  if (args.size() == 1 && QFileInfo(args.front()).isFile()) {
    QDesktopServices::openUrl(QUrl::fromLocalFile(args.front()));
    return;
  }
  QString prog = args.takeFirst();
  if (!QProcess::startDetached(prog, args))
    Message("Impossible de lancer le programme : " + ligne, Icone::Exclamation, "ORVA");
}

void PortQt::PressePapiers(const std::vector<uint8_t>& metafichier, const std::vector<uint8_t>& png) {
  auto* m = new QMimeData;
  m->setData("image/x-wmf", QByteArray(reinterpret_cast<const char*>(metafichier.data()), static_cast<qsizetype>(metafichier.size())));
  m->setData("image/png", QByteArray(reinterpret_cast<const char*>(png.data()), static_cast<qsizetype>(png.size())));
  QImage image;
  if (image.loadFromData(m->data("image/png"), "PNG")) m->setImageData(image);
  QApplication::clipboard()->setMimeData(m);
}

void PortQt::PressePapiersTexte(const std::string& texte) {
  Plateforme::PressePapiersTexte(texte);
  QApplication::clipboard()->setText(QString::fromStdString(texte));
}

void PortQt::Quitte() {
  quitte_ = true;
  QApplication::exit(0);
}

void ExecuteProtege(const std::string& commande, const std::function<void()>& f) {
  try {
    f();
  } catch (const ErreurExecution& e) {
    if (e.Numero != ErrAnnulation) RapporteErreur(commande, e.Numero, e.Texte());
  } catch (const std::exception& e) {
    RapporteErreur(commande, 0, e.what());
  }
}

}  // namespace orva
