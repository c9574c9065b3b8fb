#include "ihm/Icones.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

// The resources of a static library are registered by hand, outside any namespace.
static void InitialiseRessourcesOrva() { Q_INIT_RESOURCE(orva); }

namespace orva {

QIcon IconeOrva() {
  static const bool initialisees = (InitialiseRessourcesOrva(), true);
  (void)initialisees;
  QIcon i(":/icones/orva.png");
  if (!i.isNull()) return i;
  QPixmap p(64, 64);
  p.fill(QColor(0xf4, 0xf1, 0xe8));
  return QIcon(p);
}

namespace {

// A magnifying glass with a minus (zoom out) or a plus (zoom in).
QPixmap Loupe(bool plus) {
  QPixmap p(32, 32);
  p.fill(Qt::transparent);
  QPainter g(&p);
  g.setRenderHint(QPainter::Antialiasing);
  g.setPen(QPen(QColor(0x30, 0x30, 0x30), 3, Qt::SolidLine, Qt::RoundCap));
  g.drawLine(QPointF(20, 20), QPointF(29, 29));
  g.setPen(QPen(QColor(0x30, 0x30, 0x30), 2.5));
  g.setBrush(QColor(0xdd, 0xee, 0xff));
  g.drawEllipse(QPointF(13, 13), 9.5, 9.5);
  g.setPen(QPen(QColor(0x80, 0, 0), 2.5, Qt::SolidLine, Qt::FlatCap));
  g.drawLine(QPointF(8, 13), QPointF(18, 13));
  if (plus) g.drawLine(QPointF(13, 8), QPointF(13, 18));
  return p;
}

// An arrow pointing up, turned by `angle` degrees clockwise.
QPixmap Fleche(int angle) {
  QPixmap p(32, 32);
  p.fill(Qt::transparent);
  QPainter g(&p);
  g.setRenderHint(QPainter::Antialiasing);
  g.translate(16, 16);
  g.rotate(angle);
  QPainterPath f;
  f.moveTo(0, -12);
  f.lineTo(10, 0);
  f.lineTo(4, 0);
  f.lineTo(4, 12);
  f.lineTo(-4, 12);
  f.lineTo(-4, 0);
  f.lineTo(-10, 0);
  f.closeSubpath();
  g.setPen(QPen(QColor(0, 0x50, 0), 1.5));
  g.setBrush(QColor(0, 0x80, 0));
  g.drawPath(f);
  return p;
}

}  // namespace

QIcon IconeBarreDOutils(int n) {
  switch (n) {
    case 1: return QIcon(Loupe(false));
    case 2: return QIcon(Loupe(true));
    case 4: return QIcon(Fleche(0));
    case 5: return QIcon(Fleche(270));
    case 6: return QIcon(Fleche(90));
    case 7: return QIcon(Fleche(180));
    default: return {};
  }
}

}  // namespace orva
