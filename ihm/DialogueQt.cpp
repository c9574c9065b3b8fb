#include "ihm/DialogueQt.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include "noyau/Controles.h"

namespace orva {

namespace {

QString Q(const std::string& s) { return QString::fromStdString(s); }

// "&" marks an access key in our captions as in Qt's.
QString Libelle(const std::string& nom, const Controle& c) { return Q(c.Caption.empty() ? nom : c.Caption); }

void Commun(QWidget* w, const Controle& c) {
  w->setEnabled(c.Enabled);
  w->setVisible(c.Visible);
}

}  // namespace

DialogueQt::DialogueQt(Dialogue& d, QWidget* parent) : QDialog(parent), etat_(d) {
  setObjectName(Q(d.Nom));
  Construit();
}

void DialogueQt::Action(const std::function<void()>& f) {
  if (enSynchro_) return;
  if (f) f();
  Synchronise();
  if (ApresAction) ApresAction();
  if (!etat_.Visible && isVisible()) QDialog::done(0);
}

void DialogueQt::AjouteControle(const std::string& nom, Controle* c, QGridLayout* grille, int& ligne) {
  QString on = Q(nom);
  if (auto* b = dynamic_cast<Bouton*>(c)) {
    auto* w = new QPushButton(Libelle(nom, *b), this);
    w->setObjectName(on);
    w->setAutoDefault(false);
    connect(w, &QPushButton::clicked, this, [this, b] { Action(b->Click); });
    grille->addWidget(w, ligne++, 0, 1, 2);
    synchros_.push_back([w, b, nom] { w->setText(Libelle(nom, *b)); Commun(w, *b); });
  } else if (auto* k = dynamic_cast<CaseACocher*>(c)) {
    auto* w = new QCheckBox(Libelle(nom, *k), this);
    w->setObjectName(on);
    connect(w, &QCheckBox::toggled, this, [this, k](bool v) {
      Action([k, v] {
        k->Value = v ? 1 : 0;
        if (k->Click) k->Click();
      });
    });
    grille->addWidget(w, ligne++, 0, 1, 2);
    synchros_.push_back([w, k, nom] { w->setText(Libelle(nom, *k)); w->setChecked(k->Value != 0); Commun(w, *k); });
  } else if (auto* o = dynamic_cast<BoutonOption*>(c)) {
    auto* w = new QRadioButton(Libelle(nom, *o), this);
    w->setObjectName(on);
    w->setAutoExclusive(false);
    connect(w, &QRadioButton::clicked, this, [this, o] {
      Action([this, o] {
        // Options of one dialog form one group.
        for (auto& [n, autre] : etat_.Controles())
          if (auto* x = dynamic_cast<BoutonOption*>(autre)) x->Value = false;
        o->Value = true;
        if (o->Click) o->Click();
      });
    });
    grille->addWidget(w, ligne++, 0, 1, 2);
    synchros_.push_back([w, o, nom] { w->setText(Libelle(nom, *o)); w->setChecked(o->Value); Commun(w, *o); });
  } else if (auto* t = dynamic_cast<ZoneTexte*>(c)) {
    auto* l = new QLabel(Libelle(nom, *t), this);
    auto* w = new QLineEdit(this);
    w->setObjectName(on);
    l->setBuddy(w);
    connect(w, &QLineEdit::textEdited, this, [this, t](const QString& s) {
      Action([t, s] {
        t->Text = s.toStdString();
        if (t->Change) t->Change();
      });
    });
    grille->addWidget(l, ligne, 0);
    grille->addWidget(w, ligne++, 1);
    synchros_.push_back([w, l, t] {
      if (w->text() != Q(t->Text)) w->setText(Q(t->Text));
      Commun(w, *t);
      l->setVisible(t->Visible);
    });
  } else if (auto* s = dynamic_cast<Curseur*>(c)) {
    auto* l = new QLabel(Libelle(nom, *s), this);
    if (nom.rfind("Gauge", 0) == 0) {
      auto* w = new QProgressBar(this);
      w->setObjectName(on);
      grille->addWidget(l, ligne, 0);
      grille->addWidget(w, ligne++, 1);
      synchros_.push_back([w, s] {
        w->setRange(static_cast<int>(s->Min), static_cast<int>(s->Max));
        w->setValue(static_cast<int>(s->Value));
        Commun(w, *s);
      });
    } else {
      auto* w = new QSpinBox(this);
      w->setObjectName(on);
      connect(w, &QSpinBox::valueChanged, this, [this, s](int v) {
        Action([s, v] {
          s->Value = v;
          if (s->Change) s->Change();
        });
      });
      grille->addWidget(l, ligne, 0);
      grille->addWidget(w, ligne++, 1);
      synchros_.push_back([w, s] {
        w->setRange(static_cast<int>(s->Min), static_cast<int>(s->Max));
        w->setValue(static_cast<int>(s->Value));
        Commun(w, *s);
      });
    }
  } else if (auto* li = dynamic_cast<Liste*>(c)) {
    auto* l = new QLabel(Libelle(nom, *li), this);
    if (li->Combo) {
      auto* w = new QComboBox(this);
      w->setObjectName(on);
      w->setEditable(li->Editable);
      l->setBuddy(w);
      connect(w, &QComboBox::activated, this, [this, li, w](int i) {
        Action([li, w, i] {
          li->ListIndex = i;
          li->Text = w->itemText(i).toStdString();
          if (li->Click) li->Click();
          if (li->Change) li->Change();
        });
      });
      if (li->Editable)
        connect(w, &QComboBox::editTextChanged, this, [this, li](const QString& s) {
          Action([li, s] {
            li->Text = s.toStdString();
            if (li->Change) li->Change();
          });
        });
      grille->addWidget(l, ligne, 0);
      grille->addWidget(w, ligne++, 1);
      synchros_.push_back([w, li] {
        if (w->count() != li->ListCount()) {
          w->clear();
          for (auto& r : li->Lignes) w->addItem(Q(r));
        }
        w->setCurrentIndex(li->ListIndex);
        if (li->Editable && w->currentText() != Q(li->Text)) w->setEditText(Q(li->Text));
        Commun(w, *li);
      });
    } else {
      auto* w = new QListWidget(this);
      w->setObjectName(on);
      w->setSelectionMode(li->MultiSelect ? QAbstractItemView::MultiSelection : QAbstractItemView::SingleSelection);
      connect(w, &QListWidget::itemClicked, this, [this, li, w](QListWidgetItem* it) {
        Action([li, w, it] {
          int i = w->row(it);
          li->ListIndex = i;
          if (i >= 0 && i < static_cast<int>(li->Selected.size())) li->Selected[static_cast<std::size_t>(i)] = it->isSelected();
          if (li->Click) li->Click();
        });
      });
      connect(w, &QListWidget::itemDoubleClicked, this, [this, li, w](QListWidgetItem* it) {
        Action([li, w, it] {
          li->ListIndex = w->row(it);
          if (li->DblClick) li->DblClick();
        });
      });
      grille->addWidget(l, ligne++, 0, 1, 2);
      grille->addWidget(w, ligne++, 0, 1, 2);
      synchros_.push_back([w, li] {
        if (w->count() != li->ListCount()) {
          w->clear();
          for (auto& r : li->Lignes) w->addItem(Q(r));
        }
        for (int i = 0; i < w->count(); ++i) {
          bool sel = li->MultiSelect ? (i < static_cast<int>(li->Selected.size()) && li->Selected[static_cast<std::size_t>(i)])
                                     : i == li->ListIndex;
          w->item(i)->setSelected(sel);
        }
        Commun(w, *li);
      });
    }
  } else if (auto* e = dynamic_cast<Etiquette*>(c)) {
    auto* w = new QLabel(Libelle(nom, *e), this);
    w->setObjectName(on);
    grille->addWidget(w, ligne++, 0, 1, 2);
    synchros_.push_back([w, e, nom] { w->setText(Libelle(nom, *e)); Commun(w, *e); });
  }
}

void DialogueQt::Construit() {
  auto* grille = new QGridLayout;
  int ligne = 0;
  for (auto& [nom, c] : etat_.Controles()) AjouteControle(nom, c, grille, ligne);
  // Control arrays (rows made by the program, such as one option per present mode): a
  // sub-layout rebuilt when the number of elements changes.
  auto* cadreTableaux = new QVBoxLayout;
  for (const std::string& t : etat_.NomsTableaux()) tableaux_.push_back(t);
  auto* principal = new QVBoxLayout(this);
  principal->addLayout(grille);
  principal->addLayout(cadreTableaux);
  synchros_.push_back([this, cadreTableaux] {
    for (const std::string& t : tableaux_) {
      int n = 0;
      while (etat_.Cherche(t, n + 1)) ++n;
      if (tailleTableaux_[t] == n) continue;
      tailleTableaux_[t] = n;
      while (QLayoutItem* it = cadreTableaux->takeAt(0)) {
        delete it->widget();
        delete it;
      }
      for (int i = 1; i <= n; ++i) {
        Controle* c = etat_.Cherche(t, i);
        QString nom = Q(t) + QString("(%1)").arg(i);
        if (auto* k = dynamic_cast<CaseACocher*>(c)) {
          auto* w = new QCheckBox(Q(k->Caption), this);
          w->setObjectName(nom);
          w->setChecked(k->Value != 0);
          connect(w, &QCheckBox::toggled, this, [this, k](bool v) {
            Action([k, v] {
              k->Value = v ? 1 : 0;
              if (k->Click) k->Click();
            });
          });
          cadreTableaux->addWidget(w);
        } else if (auto* b = dynamic_cast<Bouton*>(c)) {
          auto* w = new QPushButton(Q(b->Caption), this);
          w->setObjectName(nom);
          connect(w, &QPushButton::clicked, this, [this, b] { Action(b->Click); });
          cadreTableaux->addWidget(w);
        }
      }
    }
  });
  setWindowTitle(Q(etat_.Caption));
}

void DialogueQt::Synchronise() {
  enSynchro_ = true;
  setWindowTitle(Q(etat_.Caption));
  for (auto& f : synchros_) f();
  enSynchro_ = false;
}

void DialogueQt::reject() {
  // Escape and the window's close button act as the dialog's "Annuler" when it has one.
  for (auto& [nom, c] : etat_.Controles()) {
    if (auto* b = dynamic_cast<Bouton*>(c); b && b->Caption == "Annuler" && b->Click) {
      Action(b->Click);
      return;
    }
  }
  etat_.Visible = false;
  QDialog::reject();
}

void DialogueQt::closeEvent(QCloseEvent* e) {
  if (etat_.Visible) {
    e->ignore();
    reject();
    if (!etat_.Visible) e->accept();
    return;
  }
  e->accept();
}

DialogueQt* DialogueDe(const std::string& nom, QWidget* parent) {
  static std::map<std::string, DialogueQt*> faits;
  auto it = faits.find(nom);
  if (it != faits.end()) return it->second;
  Dialogue* d = ChercheDialogue(nom);
  if (!d) return nullptr;
  auto* q = new DialogueQt(*d, parent);
  faits[nom] = q;
  return q;
}

}  // namespace orva
