#include "ihm/DialogueQt.h"

#include <QBarSeries>
#include <QBarSet>
#include <QChart>
#include <QChartView>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QListWidget>
#include <QPixmap>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpressionValidator>
#include <QSpinBox>
#include <QTabWidget>
#include <QTimer>
#include <QToolButton>
#include <QValueAxis>
#include <QVBoxLayout>
#include <algorithm>
#include <set>

#include "dessin/Apercu.h"
#include "ihm/Icones.h"
#include "ihm/PortQt.h"
#include "noyau/Controles.h"

namespace orva {

namespace {

QString Q(const std::string& s) { return QString::fromStdString(s); }

// Labels of the rows whose control the state leaves without a caption.
const std::map<std::string, std::string>& Libelles() {
  static const std::map<std::string, std::string> m = {
      {"Angles.Texte1", "Angle vertical :"},
      {"Angles.Texte3", "Angle horizontal :"},
      {"Angles.ListeModifiable1", "Rotation centrée sur :"},
      {"ParamAffichage.CoefficientZoom", "Coefficient de zoom :"},
      {"ParamAffichage.xZoom", "Décalage en x :"},
      {"ParamAffichage.yZoom", "Décalage en y :"},
      {"ParamAffichage.HauteurImage", "Hauteur de l'image :"},
      {"ParamAffichage.LargeurImage", "Largeur de l'image :"},
      {"ParamAffichage.ListeDesEspaces", "Espaces prédéfinis :"},
      {"AspectVisuelArcs.Combo1", "Couleur :"},
      {"AspectVisuelArcs.Text3", "Numéro de la couleur :"},
      {"TraceArcs.Option3DMode", "Modes du graphe"},
      {"Statistiques.Borne", "Bornes des classes :"},
      {"SortieDXF.CouleurCad", "Couleur"},
      {"SortieDXF.epaisseurcad", "Epaisseur"},
      {"SortieDXF.plancad", "Plan"},
      {"SortieDXF.Tube", "Tubes"},
      {"SortieDXF.cadcircle", "Cercles et noms"},
      {"SortieDXF.NomVilleDxf", "Texte des noms"},
      {"SortieDXF.CocheNoeud", "Noeuds"},
  };
  return m;
}

std::string SansEsperluette(const std::string& s) {
  std::string r;
  for (char c : s)
    if (c != '&') r += c;
  return r;
}

bool EstBoutonDuBas(const Controle& c) {
  const std::string t = SansEsperluette(c.Caption);
  return t == "OK" || t == "Annuler";
}

bool EstSpin(const std::string& nom, const Curseur& s) { return nom.rfind("Spin", 0) == 0 && s.Min == -1 && s.Max == 1; }

// Arrow keys in a text box step the spin button of its row.
class FiltreFleches : public QObject {
 public:
  FiltreFleches(QObject* parent, std::function<void(int)> pas) : QObject(parent), pas_(std::move(pas)) {}

 protected:
  bool eventFilter(QObject* o, QEvent* e) override {
    if (e->type() == QEvent::KeyPress) {
      auto* k = static_cast<QKeyEvent*>(e);
      if (k->key() == Qt::Key_Up || k->key() == Qt::Key_Down) {
        pas_(k->key() == Qt::Key_Up ? 1 : -1);
        return true;
      }
    }
    return QObject::eventFilter(o, e);
  }

 private:
  std::function<void(int)> pas_;
};

// Access keys: every caption without one gets the first letter that no other caption of the
// dialog uses.
QString AvecTouche(const QString& texte, QChar touche) {
  if (texte.contains('&') || touche.isNull()) return texte;
  const int i = texte.indexOf(touche, 0, Qt::CaseInsensitive);
  if (i < 0) return texte;
  QString r = texte;
  r.insert(i, '&');
  return r;
}

QChar ToucheDe(const QString& texte) {
  const int i = texte.indexOf('&');
  if (i < 0 || i + 1 >= texte.size()) return {};
  return texte[i + 1].toLower();
}

QColor CouleurDe(int32_t c) { return QColor(c & 0xFF, (c >> 8) & 0xFF, (c >> 16) & 0xFF); }

// A double click on a text box runs its command (a file name that opens its chooser).
class FiltreDoubleClic : public QObject {
 public:
  FiltreDoubleClic(QObject* parent, std::function<void()> f) : QObject(parent), f_(std::move(f)) {}
  bool eventFilter(QObject* o, QEvent* e) override {
    if (e->type() == QEvent::MouseButtonDblClick) {
      f_();
      return true;
    }
    return QObject::eventFilter(o, e);
  }

 private:
  std::function<void()> f_;
};

// A press of the left button on a text box runs its Click once the press has reached the box
// (a value that a click confirms in a box of its own).
class FiltrePression : public QObject {
 public:
  FiltrePression(QObject* parent, std::function<void()> f) : QObject(parent), f_(std::move(f)) {}
  bool eventFilter(QObject* o, QEvent* e) override {
    if (e->type() == QEvent::MouseButtonPress && static_cast<QMouseEvent*>(e)->button() == Qt::LeftButton)
      QTimer::singleShot(0, this, [this] { f_(); });
    return QObject::eventFilter(o, e);
  }

 private:
  std::function<void()> f_;
};

// The bar graph of a state: one bar a value, in its colour, counts on the left axis.
QChartView* NouveauGraphique(QWidget* parent) {
  auto* chart = new QChart;
  chart->legend()->hide();
  chart->setMargins(QMargins(2, 2, 2, 2));
  chart->setBackgroundRoundness(0);
  auto* vue = new QChartView(chart, parent);
  vue->setRenderHint(QPainter::Antialiasing);
  vue->setMinimumSize(320, 180);
  return vue;
}

void RempliGraphique(QChartView* vue, const Graphique& g) {
  QChart* chart = vue->chart();
  chart->removeAllSeries();
  for (QAbstractAxis* a : chart->axes()) {
    chart->removeAxis(a);
    delete a;
  }
  auto* serie = new QBarSeries;
  serie->setBarWidth(0.9);
  double haut = 0;
  for (std::size_t i = 0; i < g.Valeurs.size(); ++i) {
    auto* barre = new QBarSet(QString::number(i + 1));
    *barre << g.Valeurs[i];
    const int32_t c = i < g.Couleurs.size() ? g.Couleurs[i] : 0;
    barre->setColor(CouleurDe(c));
    barre->setBorderColor(Qt::black);
    serie->append(barre);
    haut = std::max(haut, g.Valeurs[i]);
  }
  chart->addSeries(serie);
  auto* y = new QValueAxis;
  y->setRange(0, haut > 0 ? haut * 1.1 : 1);
  y->setLabelFormat("%d");
  y->setTickCount(5);
  chart->addAxis(y, Qt::AlignLeft);
  serie->attachAxis(y);
}

// The bitmap of a surface, or a swatch of a colour 0x00BBGGRR.
QPixmap PixmapDe(const Apercu& a) {
  if (a.Surface) {
    const QImage& im = a.Surface->Image();
    if (!im.isNull()) return QPixmap::fromImage(im);
    QPixmap p(static_cast<int>(a.Surface->ScaleWidth()), static_cast<int>(a.Surface->ScaleHeight()));
    p.fill(Qt::white);
    return p;
  }
  QPixmap p(48, 22);
  p.fill(CouleurDe(a.Couleur ? *a.Couleur : 0));
  return p;
}

}  // namespace

std::string LibelleDe(const std::string& dialogue, const std::string& controle) {
  auto it = Libelles().find(dialogue + "." + controle);
  return it == Libelles().end() ? std::string() : it->second;
}

DialogueQt::DialogueQt(Dialogue& d, QWidget* parent) : QDialog(parent), etat_(d) {
  setObjectName(Q(d.Nom));
  setWindowFlag(Qt::WindowContextHelpButtonHint, false);
  Construit();
}

void DialogueQt::Action(const std::function<void()>& f) {
  if (enSynchro_) return;
  if (f) {
    auto copie = f;  // a command may register its dialog again
    ExecuteProtege(etat_.Nom, copie);
  }
  Synchronise();
  if (ApresAction) ApresAction();
  if (!etat_.Visible && isVisible()) QDialog::done(0);
}

QHBoxLayout* DialogueQt::LigneCourante() { return suite_; }

void DialogueQt::FinDeLigne() {
  suite_ = nullptr;
  rangeeBoutons_ = nullptr;
}

void DialogueQt::ChoisitGrille(int onglet) {
  QGridLayout* voulue = onglet >= 0 && onglet < static_cast<int>(pages_.size()) ? pages_[static_cast<std::size_t>(onglet)]
                                                                               : grillePrincipale_;
  if (voulue == grille_) return;
  FinDeLigne();
  lignes_[grille_] = ligne_;
  grille_ = voulue;
  ligne_ = lignes_[grille_];
}

void DialogueQt::AjouteControle(const std::string& nom, Controle* c) {
  // A label that titles a control array is shown as the title of its frame.
  if (etat_.EstTitre(c)) return;
  ChoisitGrille(c->Onglet);
  AjouteWidget(nom, c);
  if (!c->Bulle.empty())
    for (QWidget* w : findChildren<QWidget*>(Q(nom))) w->setToolTip(Q(c->Bulle));
}

void DialogueQt::AjouteWidget(const std::string& nom, Controle* c) {
  const QString on = Q(nom);
  const std::string libelle = c->Caption.empty() ? LibelleDe(etat_.Nom, nom) : c->Caption;
  // A row of the grid: a label, and a line of widgets that later controls may join.
  auto nouvelleLigne = [this](const std::string& texte, QWidget* champ) {
    auto* l = new QLabel(Q(texte), this);
    l->setBuddy(champ);
    auto* h = new QHBoxLayout;
    h->addWidget(champ, 1);
    grille_->addWidget(l, ligne_, 0);
    grille_->addLayout(h, ligne_++, 1);
    suite_ = h;
    rangeeBoutons_ = nullptr;
    return l;
  };

  if (auto* b = dynamic_cast<Bouton*>(c)) {
    auto* w = new QPushButton(Q(libelle), this);
    w->setObjectName(on);
    w->setAutoDefault(false);
    connect(w, &QPushButton::clicked, this, [this, b] { Action(b->Click); });
    if (EstBoutonDuBas(*b)) {
      const bool ok = SansEsperluette(b->Caption) == "OK";
      boutonsBas_->addButton(w, ok ? QDialogButtonBox::AcceptRole : QDialogButtonBox::RejectRole);
      if (ok) w->setDefault(true);
    } else {
      if (!rangeeBoutons_) {
        rangeeBoutons_ = new QHBoxLayout;
        grille_->addLayout(rangeeBoutons_, ligne_++, 0, 1, 2);
      }
      rangeeBoutons_->addWidget(w);
      suite_ = rangeeBoutons_;
    }
    synchros_.push_back([this, w, b, nom] {
      const std::string t = b->Caption.empty() ? nom : b->Caption;
      w->setText(AvecTouche(Q(t), w->property("touche").toChar()));
      w->setEnabled(b->Enabled);
      w->setVisible(b->Visible);
    });
    return;
  }
  if (auto* k = dynamic_cast<CaseACocher*>(c)) {
    FinDeLigne();
    auto* w = new QCheckBox(Q(libelle), this);
    w->setObjectName(on);
    connect(w, &QCheckBox::clicked, this, [this, k](bool v) {
      Action([k, v] {
        k->Value = v ? 1 : 0;
        if (k->Click) k->Click();
      });
    });
    grille_->addWidget(w, ligne_++, 0, 1, 2);
    synchros_.push_back([w, k, nom] {
      w->setText(AvecTouche(Q(k->Caption.empty() ? nom : k->Caption), w->property("touche").toChar()));
      w->setCheckState(k->Value == 0 ? Qt::Unchecked : k->Value == 2 ? Qt::PartiallyChecked : Qt::Checked);
      w->setEnabled(k->Enabled);
      w->setVisible(k->Visible);
    });
    return;
  }
  if (auto* o = dynamic_cast<BoutonOption*>(c)) {
    FinDeLigne();
    auto it = groupes_.find(o->Groupe);
    if (it == groupes_.end()) {
      auto* g = new QGroupBox(Q(o->Groupe), this);
      g->setObjectName(Q("Cadre" + o->Groupe));
      new QGridLayout(g);
      grille_->addWidget(g, ligne_++, 0, 1, 2);
      it = groupes_.emplace(o->Groupe, g).first;
      // The frame is hidden with the last of its options.
      synchros_.push_back([this, g, groupe = o->Groupe] {
        bool visible = false;
        for (auto& [n2, c2] : etat_.Controles())
          if (auto* o2 = dynamic_cast<BoutonOption*>(c2); o2 && o2->Groupe == groupe && o2->Visible) visible = true;
        g->setVisible(visible);
      });
    }
    auto* cadre = static_cast<QGridLayout*>(it->second->layout());
    int dansGroupe = 0, total = 0;
    for (auto& [n2, c2] : etat_.Controles())
      if (auto* o2 = dynamic_cast<BoutonOption*>(c2); o2 && o2->Groupe == o->Groupe) {
        if (o2 == o) dansGroupe = total;
        ++total;
      }
    const int colonnes = total > 8 ? 3 : 1;
    auto* w = new QRadioButton(Q(libelle), this);
    w->setObjectName(on);
    w->setAutoExclusive(false);
    connect(w, &QRadioButton::clicked, this, [this, o] {
      Action([this, o] {
        for (auto& [n, autre] : etat_.Controles())
          if (auto* x = dynamic_cast<BoutonOption*>(autre); x && x->Groupe == o->Groupe) x->Value = false;
        o->Value = true;
        if (o->Click) o->Click();
      });
    });
    cadre->addWidget(w, dansGroupe / colonnes, dansGroupe % colonnes);
    synchros_.push_back([w, o, nom] {
      w->setText(AvecTouche(Q(o->Caption.empty() ? nom : o->Caption), w->property("touche").toChar()));
      w->setChecked(o->Value);
      w->setEnabled(o->Enabled);
      w->setVisible(o->Visible);
    });
    return;
  }
  if (auto* t = dynamic_cast<ZoneTexte*>(c)) {
    auto* w = new QLineEdit(this);
    w->setObjectName(on);
    const bool masque = nom.rfind("MaskedEdit", 0) == 0;
    if (masque) w->setValidator(new QRegularExpressionValidator(QRegularExpression("[0-9]{0,12}"), w));
    connect(w, &QLineEdit::textEdited, this, [this, t](const QString& s) {
      Action([t, s] {
        t->Text = s.toStdString();
        if (t->Change) t->Change();
      });
    });
    if (t->DblClick)
      w->installEventFilter(new FiltreDoubleClic(w, [this, t] { Action(t->DblClick); }));
    // The Click of a text box is looked up at each press: a command may set it later.
    w->installEventFilter(new FiltrePression(w, [this, t] {
      if (t->Click && t->Enabled) Action(t->Click);
    }));
    QLabel* l = nullptr;
    if (masque && suite_) {
      // The mask field stands beside its twin text box, its caption as the unit.
      suite_->addWidget(w, 1);
      l = new QLabel(Q(libelle), this);
      suite_->addWidget(l);
    } else {
      l = nouvelleLigne(libelle, w);
    }
    synchros_.push_back([w, l, t] {
      if (w->text() != Q(t->Text)) w->setText(Q(t->Text));
      w->setEnabled(t->Enabled);
      w->setVisible(t->Visible);
      l->setVisible(t->Visible);
    });
    return;
  }
  if (auto* s = dynamic_cast<Curseur*>(c)) {
    if (EstSpin(nom, *s)) {
      // Two arrows: up sets 1, down -1, and the spin's Change takes the step.
      auto* spin = new QWidget(this);
      spin->setObjectName(on);
      auto* boite = new QVBoxLayout(spin);
      boite->setContentsMargins(0, 0, 0, 0);
      boite->setSpacing(0);
      QToolButton* fleches[2];
      for (int i = 0; i < 2; ++i) {
        const int sens = i == 0 ? 1 : -1;
        auto* f = new QToolButton(spin);
        f->setObjectName(on + (sens > 0 ? ".Haut" : ".Bas"));
        f->setArrowType(sens > 0 ? Qt::UpArrow : Qt::DownArrow);
        f->setAutoRepeat(true);
        f->setFocusPolicy(Qt::NoFocus);
        f->setFixedSize(20, 12);
        connect(f, &QToolButton::clicked, this, [this, s, sens] {
          Action([s, sens] {
            s->Value = sens;
            if (s->Change) s->Change();
          });
        });
        boite->addWidget(f);
        fleches[i] = f;
      }
      if (suite_) {
        suite_->addWidget(spin);
        // The arrow keys in the row's text box step it too.
        for (int i = suite_->count() - 1; i >= 0; --i)
          if (auto* champ = qobject_cast<QLineEdit*>(suite_->itemAt(i)->widget())) {
            champ->installEventFilter(new FiltreFleches(champ, [f = fleches[0], g = fleches[1]](int sens) {
              (sens > 0 ? f : g)->click();
            }));
            break;
          }
      } else {
        auto* h = new QHBoxLayout;
        h->addWidget(new QLabel(Q(libelle), this));
        h->addWidget(spin);
        h->addStretch();
        grille_->addLayout(h, ligne_++, 0, 1, 2);
      }
      synchros_.push_back([spin, s] {
        spin->setEnabled(s->Enabled);
        spin->setVisible(s->Visible);
      });
      return;
    }
    // Gauges, and the panels that show a percentage done.
    if (nom.rfind("Gauge", 0) == 0 || nom.rfind("Panel3D", 0) == 0) {
      auto* w = new QProgressBar(this);
      w->setObjectName(on);
      w->setTextVisible(false);
      w->setMaximumWidth(160);
      if (suite_) suite_->addWidget(w);
      else nouvelleLigne(libelle, w);
      synchros_.push_back([w, s] {
        w->setRange(static_cast<int>(s->Min), static_cast<int>(s->Max));
        w->setValue(static_cast<int>(s->Value < s->Min ? s->Min : s->Value > s->Max ? s->Max : s->Value));
        w->setVisible(s->Visible);
      });
      return;
    }
    auto* w = new QSpinBox(this);
    w->setObjectName(on);
    w->setKeyboardTracking(false);
    connect(w, &QSpinBox::valueChanged, this, [this, s](int v) {
      Action([s, v] {
        s->Value = v;
        if (s->Change) s->Change();
      });
    });
    nouvelleLigne(libelle, w);
    synchros_.push_back([w, s] {
      w->setRange(static_cast<int>(s->Min), static_cast<int>(s->Max));
      w->setValue(static_cast<int>(s->Value));
      w->setEnabled(s->Enabled);
      w->setVisible(s->Visible);
    });
    return;
  }
  if (auto* li = dynamic_cast<Liste*>(c)) {
    if (li->Combo) {
      auto* w = new QComboBox(this);
      w->setObjectName(on);
      w->setEditable(li->Saisissable());
      w->setMaxVisibleItems(20);
      w->setMinimumContentsLength(12);
      if (li->Saisissable()) w->setInsertPolicy(QComboBox::NoInsert);
      connect(w, &QComboBox::activated, this, [this, li, w](int i) {
        Action([li, w, i] {
          li->ListIndex = i;
          li->Text = w->itemText(i).toStdString();
          if (li->Click) li->Click();
        });
      });
      if (li->Saisissable())
        connect(w->lineEdit(), &QLineEdit::textEdited, this, [this, li, w](const QString& s) {
          Action([li, w, s] {
            li->Text = s.toStdString();
            li->ListIndex = w->findText(s, Qt::MatchExactly);
            if (li->Change) li->Change();
          });
        });
      auto* l = nouvelleLigne(libelle, w);
      auto lignes = std::make_shared<std::vector<std::string>>();
      synchros_.push_back([w, l, li, lignes] {
        if (*lignes != li->Lignes) {
          *lignes = li->Lignes;
          w->clear();
          for (auto& r : li->Lignes) w->addItem(Q(r));
        }
        w->setCurrentIndex(li->ListIndex < w->count() ? li->ListIndex : -1);
        if (li->Saisissable() && w->currentText() != Q(li->Text)) w->setEditText(Q(li->Text));
        w->setEnabled(li->Enabled);
        w->setVisible(li->Visible);
        l->setVisible(li->Visible);
      });
      return;
    }
    FinDeLigne();
    auto* w = new QListWidget(this);
    w->setObjectName(on);
    w->setSelectionMode(li->MultiSelect ? QAbstractItemView::MultiSelection : QAbstractItemView::SingleSelection);
    w->setMinimumHeight(120);
    if (li->MultiSelect) {
      connect(w, &QListWidget::itemSelectionChanged, this, [this, li, w] {
        Action([li, w] {
          li->Selected.assign(li->Lignes.size(), false);
          for (int i = 0; i < w->count() && i < li->ListCount(); ++i)
            li->Selected[static_cast<std::size_t>(i)] = w->item(i)->isSelected();
          li->ListIndex = w->currentRow();
          if (li->Click) li->Click();
        });
      });
    } else {
      connect(w, &QListWidget::currentRowChanged, this, [this, li](int i) {
        Action([li, i] {
          li->ListIndex = i;
          li->Selected.assign(li->Lignes.size(), false);
          if (i >= 0 && i < li->ListCount()) li->Selected[static_cast<std::size_t>(i)] = true;
          if (li->Click) li->Click();
        });
      });
    }
    connect(w, &QListWidget::itemDoubleClicked, this, [this, li, w](QListWidgetItem* it) {
      const int i = w->row(it);
      Action([li, i] {
        li->ListIndex = i;
        if (li->DblClick) li->DblClick();
      });
    });
    auto* l = new QLabel(Q(libelle), this);
    l->setBuddy(w);
    grille_->addWidget(l, ligne_++, 0, 1, 2);
    grille_->addWidget(w, ligne_++, 0, 1, 2);
    auto lignes = std::make_shared<std::vector<std::string>>();
    synchros_.push_back([w, l, li, lignes] {
      if (*lignes != li->Lignes) {
        *lignes = li->Lignes;
        w->clear();
        for (auto& r : li->Lignes) w->addItem(Q(r));
      }
      for (int i = 0; i < w->count(); ++i) {
        const bool sel = li->MultiSelect ? (i < static_cast<int>(li->Selected.size()) && li->Selected[static_cast<std::size_t>(i)])
                                         : i == li->ListIndex;
        w->item(i)->setSelected(sel);
      }
      if (!li->MultiSelect) w->setCurrentRow(li->ListIndex < w->count() ? li->ListIndex : -1);
      w->setEnabled(li->Enabled);
      w->setVisible(li->Visible);
      l->setVisible(li->Visible);
    });
    return;
  }
  if (auto* a = dynamic_cast<Apercu*>(c)) {
    auto* w = new QLabel(this);
    w->setObjectName(on);
    if (a->Surface) {
      FinDeLigne();
      w->setFrameStyle(QFrame::Panel | QFrame::Sunken);
      w->setAlignment(Qt::AlignCenter);
      grille_->addWidget(w, ligne_++, 0, 1, 2, Qt::AlignHCenter);
    } else if (suite_) {
      suite_->addWidget(w);
    } else {
      nouvelleLigne(libelle, w);
    }
    synchros_.push_back([w, a] {
      w->setPixmap(PixmapDe(*a));
      w->setVisible(a->Visible);
    });
    return;
  }
  if (auto* g = dynamic_cast<Onglets*>(c)) {
    FinDeLigne();
    auto* w = new QTabWidget(this);
    w->setObjectName(on);
    for (const std::string& p : g->Pages) {
      auto* page = new QWidget(w);
      auto* grille = new QGridLayout(page);
      grille->setColumnStretch(1, 1);
      pages_.push_back(grille);
      w->addTab(page, Q(p));
    }
    connect(w, &QTabWidget::currentChanged, this, [this, g](int i) {
      Action([g, i] {
        g->Tab = i;
        if (g->Click) g->Click();
      });
    });
    colonneOnglets_->addWidget(w);
    synchros_.push_back([w, g] {
      if (g->Tab >= 0 && g->Tab < w->count()) w->setCurrentIndex(g->Tab);
      w->setVisible(g->Visible);
    });
    return;
  }
  if (auto* g = dynamic_cast<Graphique*>(c)) {
    FinDeLigne();
    auto* w = NouveauGraphique(this);
    w->setObjectName(on);
    auto* l = new QLabel(Q(libelle), this);
    grille_->addWidget(l, ligne_++, 0, 1, 2);
    grille_->addWidget(w, ligne_++, 0, 1, 2);
    auto montres = std::make_shared<std::pair<std::vector<double>, std::vector<int32_t>>>();
    synchros_.push_back([w, l, g, montres] {
      if (montres->first != g->Valeurs || montres->second != g->Couleurs) {
        *montres = {g->Valeurs, g->Couleurs};
        RempliGraphique(w, *g);
      }
      w->setVisible(g->Visible);
      l->setVisible(g->Visible);
    });
    return;
  }
  if (dynamic_cast<Etiquette*>(c)) {
    FinDeLigne();
    auto* w = new QLabel(Q(libelle), this);
    w->setObjectName(on);
    w->setWordWrap(true);
    grille_->addWidget(w, ligne_++, 0, 1, 2);
    synchros_.push_back([w, c, nom] {
      w->setText(Q(c->Caption.empty() ? nom : c->Caption));
      w->setVisible(c->Visible);
    });
  }
}

// The indices of a control array: from 0 when it has an element 0, otherwise from 1, on past
// one missing index (an array may leave one out).
static std::vector<int> IndicesDuTableau(const Dialogue& d, const std::string& t) {
  std::vector<int> r;
  int manquants = 0;
  for (int i = d.Cherche(t, 0) ? 0 : 1; i < 100000 && manquants < 2; ++i) {
    if (d.Cherche(t, i)) {
      r.push_back(i);
      manquants = 0;
    } else if (i > 0) {
      ++manquants;
    }
  }
  return r;
}

void DialogueQt::ConstruitTableau(const std::string& t, QBoxLayout* cadre) {
  // Rows made by the program (one option per present mode): rebuilt when their captions change,
  // their values followed at every synchronisation. Text boxes and colour swatches stand in one
  // column, labelled by their captions (or their numbers), options and buttons in three columns
  // when there are many.
  const Controle* titre = etat_.TitreDe(t);
  auto* boite = new QGroupBox(Q(titre ? titre->Caption : LibelleDe(etat_.Nom, t)), this);
  // The frame takes the name of the label that titles it, if any.
  std::string nomCadre = "Cadre" + t;
  for (auto& [n, c] : etat_.Controles())
    if (c == titre) nomCadre = n;
  boite->setObjectName(Q(nomCadre));
  auto* grille = new QGridLayout(boite);
  cadre->addWidget(boite, 0, Qt::AlignTop);
  synchros_.push_back([this, t, boite, grille, titre] {
    if (titre) boite->setTitle(Q(titre->Caption));
    const std::vector<int> indices = IndicesDuTableau(etat_, t);
    std::vector<std::string> captions;
    for (int i : indices) captions.push_back(std::to_string(i) + "|" + etat_.Cherche(t, i)->Caption);
    boite->setVisible(!captions.empty());
    if (tableaux_[t] != captions) {
      tableaux_[t] = captions;
      while (QLayoutItem* it = grille->takeAt(0)) {
        delete it->widget();
        delete it;
      }
      const bool enColonne = !indices.empty() && (dynamic_cast<ZoneTexte*>(etat_.Cherche(t, indices.front())) ||
                                                  dynamic_cast<Apercu*>(etat_.Cherche(t, indices.front())));
      const int colonnes = !enColonne && captions.size() > 8 ? 3 : 1;
      for (std::size_t rang = 0; rang < indices.size(); ++rang) {
        const int i = indices[rang];
        const int r = static_cast<int>(rang);
        Controle* c = etat_.Cherche(t, i);
        const QString nom = Q(t) + QString("(%1)").arg(i);
        QWidget* w = nullptr;
        if (auto* k = dynamic_cast<CaseACocher*>(c)) {
          auto* x = new QCheckBox(Q(k->Caption), boite);
          connect(x, &QCheckBox::clicked, this, [this, t, i](bool v) {
            Action([this, t, i, v] {
              if (auto* kk = dynamic_cast<CaseACocher*>(etat_.Cherche(t, i))) {
                kk->Value = v ? 1 : 0;
                if (kk->Click) kk->Click();
              }
            });
          });
          w = x;
        } else if (dynamic_cast<BoutonOption*>(c)) {
          auto* x = new QRadioButton(Q(c->Caption), boite);
          x->setAutoExclusive(false);
          connect(x, &QRadioButton::clicked, this, [this, t, i] {
            Action([this, t, i] {
              for (int j : IndicesDuTableau(etat_, t))
                if (auto* o = dynamic_cast<BoutonOption*>(etat_.Cherche(t, j))) o->Value = j == i;
              if (Controle* cc = etat_.Cherche(t, i); cc && cc->Click) cc->Click();
            });
          });
          w = x;
        } else if (dynamic_cast<ZoneTexte*>(c)) {
          auto* x = new QLineEdit(boite);
          x->setMinimumWidth(150);
          connect(x, &QLineEdit::textEdited, this, [this, t, i](const QString& v) {
            Action([this, t, i, v] {
              if (auto* z = dynamic_cast<ZoneTexte*>(etat_.Cherche(t, i))) {
                z->Text = v.toStdString();
                if (z->Change) z->Change();
              }
            });
          });
          auto* l = new QLabel(c->Caption.empty() ? QString::number(i) : Q(c->Caption), boite);
          l->setBuddy(x);
          grille->addWidget(l, r, 0);
          w = x;
        } else if (dynamic_cast<Apercu*>(c)) {
          auto* x = new QToolButton(boite);
          x->setIconSize(QSize(48, 18));
          connect(x, &QToolButton::clicked, this, [this, t, i] {
            Action([this, t, i] {
              if (Controle* cc = etat_.Cherche(t, i); cc && cc->Click) cc->Click();
            });
          });
          w = x;
        } else {
          auto* x = new QPushButton(Q(c->Caption), boite);
          connect(x, &QPushButton::clicked, this, [this, t, i] {
            Action([this, t, i] {
              if (Controle* cc = etat_.Cherche(t, i); cc && cc->Click) cc->Click();
            });
          });
          w = x;
        }
        w->setObjectName(nom);
        if (!c->Bulle.empty()) w->setToolTip(Q(c->Bulle));
        if (enColonne) grille->addWidget(w, r, 1);
        else grille->addWidget(w, r / colonnes, r % colonnes);
      }
    }
    for (std::size_t rang = 0; rang < indices.size(); ++rang) {
      const int i = indices[rang];
      Controle* c = etat_.Cherche(t, i);
      auto* w = boite->findChild<QWidget*>(Q(t) + QString("(%1)").arg(i));
      if (!c || !w) continue;
      if (auto* b = qobject_cast<QAbstractButton*>(w)) {
        if (auto* k = dynamic_cast<CaseACocher*>(c)) b->setChecked(k->Value != 0);
        if (auto* o = dynamic_cast<BoutonOption*>(c)) b->setChecked(o->Value);
      }
      if (auto* z = dynamic_cast<ZoneTexte*>(c))
        if (auto* x = qobject_cast<QLineEdit*>(w); x && x->text() != Q(z->Text)) x->setText(Q(z->Text));
      if (auto* a = dynamic_cast<Apercu*>(c))
        if (auto* x = qobject_cast<QToolButton*>(w)) x->setIcon(QIcon(PixmapDe(*a)));
      w->setEnabled(c->Enabled);
      w->setVisible(c->Visible);
      // The label beside a text box of the column.
      const int r = static_cast<int>(rang);
      if (auto* l = qobject_cast<QLabel*>(grille->itemAtPosition(r, 0) ? grille->itemAtPosition(r, 0)->widget() : nullptr))
        l->setVisible(c->Visible);
    }
  });
}

void DialogueQt::ConstruitGrille(QBoxLayout* cadre) {
  // The arrays of GrilleTableaux as one table: a column an array, a row an index, the rows
  // labelled by the captions of the first array's elements.
  const std::vector<std::string>& t = etat_.GrilleTableaux;
  auto* boite = new QGroupBox(Q(etat_.TitreGrille), this);
  boite->setObjectName("Grille");
  auto* grille = new QGridLayout(boite);
  grille->setVerticalSpacing(2);
  cadre->addWidget(boite, 0, Qt::AlignTop);
  for (std::size_t k = 0; k < t.size(); ++k)
    grille->addWidget(new QLabel(Q(LibelleDe(etat_.Nom, t[k])), boite), 0, static_cast<int>(k) + 1);
  const std::vector<int> indices = IndicesDuTableau(etat_, t.front());
  for (std::size_t rang = 0; rang < indices.size(); ++rang) {
    const int i = indices[rang];
    const int ligne = static_cast<int>(rang) + 1;
    grille->addWidget(new QLabel(Q(etat_.Cherche(t.front(), i)->Caption), boite), ligne, 0);
    for (std::size_t k = 0; k < t.size(); ++k) {
      auto* z = dynamic_cast<ZoneTexte*>(etat_.Cherche(t[k], i));
      if (!z) continue;
      auto* x = new QLineEdit(boite);
      x->setObjectName(Q(t[k]) + QString("(%1)").arg(i));
      x->setMinimumWidth(80);
      connect(x, &QLineEdit::textEdited, this, [this, z](const QString& v) {
        Action([z, v] {
          z->Text = v.toStdString();
          if (z->Change) z->Change();
        });
      });
      grille->addWidget(x, ligne, static_cast<int>(k) + 1);
      synchros_.push_back([x, z] {
        if (x->text() != Q(z->Text)) x->setText(Q(z->Text));
        x->setEnabled(z->Enabled);
      });
    }
  }
}

void DialogueQt::DonneTouchesDAcces() {
  std::set<QChar> prises;
  std::vector<QWidget*> sans;
  auto texteDe = [](QWidget* w) -> QString {
    if (auto* b = qobject_cast<QAbstractButton*>(w)) return b->text();
    if (auto* l = qobject_cast<QLabel*>(w)) return l->buddy() ? l->text() : QString();
    if (auto* g = qobject_cast<QGroupBox*>(w)) return g->title();
    return {};
  };
  for (QWidget* w : findChildren<QWidget*>()) {
    if (qobject_cast<QToolButton*>(w)) continue;
    const QString t = texteDe(w);
    if (t.isEmpty()) continue;
    if (QChar k = ToucheDe(t); !k.isNull()) prises.insert(k);
    else sans.push_back(w);
  }
  for (QWidget* w : sans) {
    if (qobject_cast<QGroupBox*>(w)) continue;
    const QString t = texteDe(w);
    QChar choisie;
    for (QChar ch : t)
      if (ch.isLetterOrNumber() && !prises.count(ch.toLower())) {
        choisie = ch.toLower();
        break;
      }
    if (choisie.isNull()) continue;
    prises.insert(choisie);
    w->setProperty("touche", choisie);
    if (auto* l = qobject_cast<QLabel*>(w)) l->setText(AvecTouche(t, choisie));
    else if (auto* b = qobject_cast<QAbstractButton*>(w)) b->setText(AvecTouche(t, choisie));
  }
}

void DialogueQt::Construit() {
  auto* principal = new QVBoxLayout(this);
  if (etat_.Nom == "Présentation") {
    // The start-up screen and about box: the program's picture and name above the button.
    auto* tete = new QHBoxLayout;
    auto* icone = new QLabel(this);
    icone->setPixmap(IconeOrva().pixmap(64, 64));
    tete->addWidget(icone);
    auto* titre = new QLabel(this);
    titre->setObjectName("Titre");
    titre->setText("<h1>ORVA</h1><p>Images de synthèse et cartographie des réseaux</p>");
    tete->addWidget(titre, 1);
    principal->addLayout(tete);
  }
  grillePrincipale_ = grille_ = new QGridLayout;
  grille_->setColumnStretch(1, 1);
  // A tabbed dialog: its pages on the left; its control arrays side by side, then its own rows,
  // on the right. Any other: its rows, then its control arrays below them or, with a table of
  // arrays, beside them.
  bool avecOnglets = false;
  for (auto& [nom, c] : etat_.Controles())
    if (dynamic_cast<Onglets*>(c)) avecOnglets = true;
  auto* corps = new QHBoxLayout;
  principal->addLayout(corps);
  QBoxLayout* cadreTableaux = nullptr;
  if (avecOnglets) {
    colonneOnglets_ = new QVBoxLayout;
    corps->addLayout(colonneOnglets_, 3);
    auto* droite = new QVBoxLayout;
    cadreTableaux = new QHBoxLayout;
    droite->addLayout(cadreTableaux);
    droite->addLayout(grille_);
    droite->addStretch();
    corps->addLayout(droite, 2);
  } else if (!etat_.GrilleTableaux.empty()) {
    // A dialog with a table of arrays: its rows on the left, the table and the other arrays in
    // a column on the right.
    auto* gauche = new QVBoxLayout;
    gauche->addLayout(grille_);
    gauche->addStretch();
    corps->addLayout(gauche, 1);
    cadreTableaux = new QVBoxLayout;
    corps->addLayout(cadreTableaux, 1);
  } else {
    auto* gauche = new QVBoxLayout;
    gauche->addLayout(grille_);
    cadreTableaux = new QVBoxLayout;
    gauche->addLayout(cadreTableaux);
    corps->addLayout(gauche, 1);
  }
  boutonsBas_ = new QDialogButtonBox(this);
  boutonsBas_->setObjectName("Boutons");
  for (auto& [nom, c] : etat_.Controles()) AjouteControle(nom, c);
  ChoisitGrille(-1);
  for (QGridLayout* page : pages_) page->setRowStretch(lignes_[page], 1);
  if (!etat_.GrilleTableaux.empty()) ConstruitGrille(cadreTableaux);
  for (const std::string& t : etat_.NomsTableaux())
    if (std::find(etat_.GrilleTableaux.begin(), etat_.GrilleTableaux.end(), t) == etat_.GrilleTableaux.end())
      ConstruitTableau(t, cadreTableaux);
  principal->addStretch();
  principal->addWidget(boutonsBas_);
  DonneTouchesDAcces();
  setWindowTitle(Q(etat_.Caption));
}

void DialogueQt::Synchronise() {
  enSynchro_ = true;
  setWindowTitle(Q(etat_.Caption));
  for (auto& f : synchros_) f();
  enSynchro_ = false;
}

void DialogueQt::reject() {
  // Escape and the window's close button act as the dialog's "Annuler" (or "Quitter") when it
  // has one; otherwise they only hide it.
  for (auto& [nom, c] : etat_.Controles()) {
    // "Quitter" of a dialog shown without waiting does the same.
    if (auto* b = dynamic_cast<Bouton*>(c);
        b && (SansEsperluette(b->Caption) == "Annuler" || (!etat_.Modal && SansEsperluette(b->Caption) == "Quitter")) &&
        b->Click) {
      if (!b->Enabled || !b->Visible) return;
      Action(b->Click);
      if (etat_.Visible) return;
      if (isVisible()) QDialog::done(0);
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
  QObject::connect(q, &QObject::destroyed, [nom] { faits.erase(nom); });
  return q;
}

}  // namespace orva
