#include "image/Odt.h"

#include <zip.h>

#include <QBuffer>
#include <QByteArray>
#include <QString>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <memory>

namespace orva {

namespace {

const QString kTexte = "urn:oasis:names:tc:opendocument:xmlns:text:1.0";
const QString kDraw = "urn:oasis:names:tc:opendocument:xmlns:drawing:1.0";
const QString kSvg = "urn:oasis:names:tc:opendocument:xmlns:svg-compatible:1.0";
const QString kXlink = "http://www.w3.org/1999/xlink";
const QString kStyle = "urn:oasis:names:tc:opendocument:xmlns:style:1.0";
const QString kFo = "urn:oasis:names:tc:opendocument:xmlns:xsl-fo-compatible:1.0";
const QString kManifeste = "urn:oasis:names:tc:opendocument:xmlns:manifest:1.0";

struct FermeArchive {
  void operator()(zip_t* z) const {
    if (z) zip_discard(z);
  }
};
using Archive = std::unique_ptr<zip_t, FermeArchive>;

QByteArray Lit(zip_t* z, const char* nom) {
  zip_stat_t st;
  if (zip_stat(z, nom, 0, &st) != 0) return {};
  zip_file_t* f = zip_fopen(z, nom, 0);
  if (!f) return {};
  QByteArray octets(static_cast<qsizetype>(st.size), '\0');
  const zip_int64_t lus = zip_fread(f, octets.data(), st.size);
  zip_fclose(f);
  if (lus < 0) return {};
  octets.resize(static_cast<qsizetype>(lus));
  return octets;
}

// Adds or replaces an entry with bytes that libzip copies and frees.
bool Pose(zip_t* z, const std::string& nom, const QByteArray& octets, bool stocke) {
  void* copie = std::malloc(static_cast<std::size_t>(std::max<qsizetype>(octets.size(), 1)));
  if (!copie) return false;
  std::memcpy(copie, octets.constData(), static_cast<std::size_t>(octets.size()));
  zip_source_t* source = zip_source_buffer(z, copie, static_cast<zip_uint64_t>(octets.size()), 1);
  if (!source) {
    std::free(copie);
    return false;
  }
  const zip_int64_t i = zip_file_add(z, nom.c_str(), source, ZIP_FL_OVERWRITE | ZIP_FL_ENC_UTF_8);
  if (i < 0) {
    zip_source_free(source);
    return false;
  }
  if (stocke) zip_set_file_compression(z, static_cast<zip_uint64_t>(i), ZIP_CM_STORE, 0);
  // A fixed date: the same bytes on every machine.
  std::tm t{};
  t.tm_year = 100;
  t.tm_mday = 1;
  t.tm_hour = 12;
  zip_file_set_mtime(z, static_cast<zip_uint64_t>(i), std::mktime(&t), 0);
  return true;
}

QByteArray Contenu(const QString& titre, bool legende) {
  QByteArray octets;
  QXmlStreamWriter x(&octets);
  x.setAutoFormatting(true);
  x.writeStartDocument();
  x.writeNamespace("urn:oasis:names:tc:opendocument:xmlns:office:1.0", "office");
  x.writeNamespace(kTexte, "text");
  x.writeNamespace(kDraw, "draw");
  x.writeNamespace(kSvg, "svg");
  x.writeNamespace(kXlink, "xlink");
  x.writeNamespace(kStyle, "style");
  x.writeNamespace(kFo, "fo");
  const QString office = "urn:oasis:names:tc:opendocument:xmlns:office:1.0";
  x.writeStartElement(office, "document-content");
  x.writeAttribute(office, "version", "1.2");
  x.writeStartElement(office, "automatic-styles");
  x.writeStartElement(kStyle, "style");
  x.writeAttribute(kStyle, "name", "Titre");
  x.writeAttribute(kStyle, "family", "paragraph");
  x.writeEmptyElement(kStyle, "text-properties");
  x.writeAttribute(kFo, "font-size", "16pt");
  x.writeAttribute(kFo, "font-weight", "bold");
  x.writeEndElement();
  x.writeEndElement();
  x.writeStartElement(office, "body");
  x.writeStartElement(office, "text");
  x.writeStartElement(kTexte, "p");
  x.writeAttribute(kTexte, "style-name", "Titre");
  x.writeCharacters(titre);
  x.writeEndElement();
  auto signet = [&](const QString& nom) {
    x.writeStartElement(kTexte, "p");
    x.writeEmptyElement(kTexte, "bookmark");
    x.writeAttribute(kTexte, "name", nom);
    x.writeEndElement();
  };
  signet("Image");
  if (legende) {
    x.writeStartElement(kTexte, "p");
    x.writeCharacters(QString::fromUtf8("Légende :"));
    x.writeEndElement();
    signet(QString::fromUtf8("Légende"));
  }
  x.writeEndElement();
  x.writeEndElement();
  x.writeEndElement();
  x.writeEndDocument();
  return octets;
}

QByteArray Styles() {
  QByteArray octets;
  QXmlStreamWriter x(&octets);
  x.setAutoFormatting(true);
  x.writeStartDocument();
  const QString office = "urn:oasis:names:tc:opendocument:xmlns:office:1.0";
  x.writeNamespace(office, "office");
  x.writeNamespace(kStyle, "style");
  x.writeNamespace(kFo, "fo");
  x.writeStartElement(office, "document-styles");
  x.writeAttribute(office, "version", "1.2");
  x.writeStartElement(office, "automatic-styles");
  x.writeStartElement(kStyle, "page-layout");
  x.writeAttribute(kStyle, "name", "A4");
  x.writeEmptyElement(kStyle, "page-layout-properties");
  x.writeAttribute(kFo, "page-width", "21cm");
  x.writeAttribute(kFo, "page-height", "29.7cm");
  x.writeAttribute(kFo, "margin-top", "2cm");
  x.writeAttribute(kFo, "margin-bottom", "2cm");
  x.writeAttribute(kFo, "margin-left", "2cm");
  x.writeAttribute(kFo, "margin-right", "2cm");
  x.writeEndElement();
  x.writeEndElement();
  x.writeStartElement(office, "master-styles");
  x.writeEmptyElement(kStyle, "master-page");
  x.writeAttribute(kStyle, "name", "Standard");
  x.writeAttribute(kStyle, "page-layout-name", "A4");
  x.writeEndElement();
  x.writeEndElement();
  x.writeEndDocument();
  return octets;
}

QByteArray Manifeste() {
  QByteArray octets;
  QXmlStreamWriter x(&octets);
  x.setAutoFormatting(true);
  x.writeStartDocument();
  x.writeNamespace(kManifeste, "manifest");
  x.writeStartElement(kManifeste, "manifest");
  x.writeAttribute(kManifeste, "version", "1.2");
  auto entree = [&](const char* chemin, const char* type) {
    x.writeEmptyElement(kManifeste, "file-entry");
    x.writeAttribute(kManifeste, "full-path", chemin);
    x.writeAttribute(kManifeste, "media-type", type);
  };
  entree("/", "application/vnd.oasis.opendocument.text");
  entree("content.xml", "text/xml");
  entree("styles.xml", "text/xml");
  x.writeEndElement();
  x.writeEndDocument();
  return octets;
}

// A length of ODF ("17cm", "170mm", "6.5in", "12pt") in centimetres.
double Centimetres(const QString& longueur) {
  static const struct {
    const char* unite;
    double cm;
  } kUnites[] = {{"cm", 1}, {"mm", 0.1}, {"in", 2.54}, {"pt", 2.54 / 72}, {"pc", 2.54 / 6}};
  for (const auto& u : kUnites)
    if (longueur.endsWith(u.unite)) return longueur.chopped(static_cast<qsizetype>(std::strlen(u.unite))).toDouble() * u.cm;
  return longueur.toDouble();
}

// The width of the text of the first page layout: the page less its left and right margins.
double LargeurTexte(const QByteArray& styles) {
  QXmlStreamReader x(styles);
  while (!x.atEnd()) {
    x.readNext();
    if (x.isStartElement() && x.namespaceUri() == kStyle && x.name() == u"page-layout-properties") {
      const QXmlStreamAttributes a = x.attributes();
      const double l = Centimetres(a.value(kFo, "page-width").toString()) -
                       Centimetres(a.value(kFo, "margin-left").toString()) -
                       Centimetres(a.value(kFo, "margin-right").toString());
      if (l > 0) return l;
    }
  }
  return 17;
}

// Copies the token in hand: an element opens with its own prefixes declared first, so that the
// writer names it as the document did.
void CopieJeton(QXmlStreamReader& lecteur, QXmlStreamWriter& ecrivain) {
  if (!lecteur.isStartElement()) {
    ecrivain.writeCurrentToken(lecteur);
    return;
  }
  for (const QXmlStreamNamespaceDeclaration& d : lecteur.namespaceDeclarations()) {
    if (d.prefix().isEmpty()) ecrivain.writeDefaultNamespace(d.namespaceUri().toString());
    else ecrivain.writeNamespace(d.namespaceUri().toString(), d.prefix().toString());
  }
  if (lecteur.namespaceUri().isEmpty()) ecrivain.writeStartElement(lecteur.qualifiedName().toString());
  else ecrivain.writeStartElement(lecteur.namespaceUri().toString(), lecteur.name().toString());
  ecrivain.writeAttributes(lecteur.attributes());
}

}  // namespace

bool CreeModeleOdt(const std::string& chemin, const std::string& titre, bool legende) {
  int erreur = 0;
  Archive z(zip_open(chemin.c_str(), ZIP_CREATE | ZIP_TRUNCATE, &erreur));
  if (!z) return false;
  // The mimetype first and stored, as the format asks; the rest stored too.
  const bool ok = Pose(z.get(), "mimetype", "application/vnd.oasis.opendocument.text", true) &&
                  Pose(z.get(), "content.xml", Contenu(QString::fromStdString(titre), legende), true) &&
                  Pose(z.get(), "styles.xml", Styles(), true) &&
                  Pose(z.get(), "META-INF/manifest.xml", Manifeste(), true);
  if (!ok) return false;
  return zip_close(z.release()) == 0;
}

std::string InsereImageOdt(const std::string& chemin, const std::string& signet, const QImage& image) {
  int erreur = 0;
  Archive z(zip_open(chemin.c_str(), 0, &erreur));
  if (!z) return "Le document " + chemin + " n'est pas un document OpenDocument.";
  const QByteArray contenu = Lit(z.get(), "content.xml");
  const QByteArray manifeste = Lit(z.get(), "META-INF/manifest.xml");
  if (contenu.isEmpty() || manifeste.isEmpty()) return "Le document " + chemin + " n'est pas un document OpenDocument.";
  // The picture's name: the next free number.
  int numero = 1;
  while (zip_name_locate(z.get(), ("Pictures/image" + std::to_string(numero) + ".png").c_str(), 0) >= 0) ++numero;
  const QString nomImage = QString("Pictures/image%1.png").arg(numero);
  const double largeur = LargeurTexte(Lit(z.get(), "styles.xml"));
  const double hauteur = image.width() > 0 ? largeur * image.height() / image.width() : 0;
  // The content again, a frame after the bookmark.
  QByteArray nouveau;
  QXmlStreamReader lecteur(contenu);
  QXmlStreamWriter ecrivain(&nouveau);
  bool trouve = false, apresSignet = false;
  while (!lecteur.atEnd()) {
    lecteur.readNext();
    if (lecteur.hasError()) return "Le contenu du document " + chemin + " est illisible.";
    CopieJeton(lecteur, ecrivain);
    if (lecteur.isStartElement() && lecteur.namespaceUri() == kTexte &&
        (lecteur.name() == u"bookmark" || lecteur.name() == u"bookmark-start") &&
        lecteur.attributes().value(kTexte, "name") == QString::fromStdString(signet) && !trouve) {
      apresSignet = true;
      trouve = true;
      continue;
    }
    if (apresSignet && lecteur.isEndElement()) {
      apresSignet = false;
      ecrivain.writeStartElement(kDraw, "frame");
      ecrivain.writeAttribute(kDraw, "name", QString("Image%1").arg(numero));
      ecrivain.writeAttribute(kTexte, "anchor-type", "as-char");
      ecrivain.writeAttribute(kSvg, "width", QString::number(largeur, 'f', 3) + "cm");
      ecrivain.writeAttribute(kSvg, "height", QString::number(hauteur, 'f', 3) + "cm");
      ecrivain.writeStartElement(kDraw, "image");
      ecrivain.writeAttribute(kXlink, "href", nomImage);
      ecrivain.writeAttribute(kXlink, "type", "simple");
      ecrivain.writeAttribute(kXlink, "show", "embed");
      ecrivain.writeAttribute(kXlink, "actuate", "onLoad");
      ecrivain.writeEndElement();
      ecrivain.writeEndElement();
    }
  }
  if (!trouve) return "Le signet " + signet + " manque dans le document " + chemin + ".";
  // The manifest with the picture.
  QByteArray manif;
  QXmlStreamReader lm(manifeste);
  QXmlStreamWriter em(&manif);
  while (!lm.atEnd()) {
    lm.readNext();
    if (lm.isEndElement() && lm.namespaceUri() == kManifeste && lm.name() == u"manifest") {
      em.writeEmptyElement(kManifeste, "file-entry");
      em.writeAttribute(kManifeste, "full-path", nomImage);
      em.writeAttribute(kManifeste, "media-type", "image/png");
    }
    CopieJeton(lm, em);
  }
  QByteArray png;
  QBuffer tampon(&png);
  tampon.open(QIODevice::WriteOnly);
  if (!image.save(&tampon, "PNG")) return "L'image ne peut pas être enregistrée.";
  if (!Pose(z.get(), "content.xml", nouveau, false) || !Pose(z.get(), "META-INF/manifest.xml", manif, false) ||
      !Pose(z.get(), nomImage.toStdString(), png, true))
    return "Le document " + chemin + " ne peut pas être modifié.";
  if (zip_close(z.get()) != 0) return "Le document " + chemin + " ne peut pas être écrit.";
  z.release();
  return {};
}

std::vector<std::string> SignetsOdt(const std::string& chemin) {
  std::vector<std::string> r;
  QXmlStreamReader x(QByteArray::fromStdString(EntreeOdt(chemin, "content.xml")));
  while (!x.atEnd()) {
    x.readNext();
    if (x.isStartElement() && x.namespaceUri() == kTexte && (x.name() == u"bookmark" || x.name() == u"bookmark-start"))
      r.push_back(x.attributes().value(kTexte, "name").toString().toStdString());
  }
  return r;
}

std::vector<std::string> ImagesApresSignetOdt(const std::string& chemin, const std::string& signet) {
  // The pictures of the frames between this bookmark and the next one (or the end).
  std::vector<std::string> r;
  QXmlStreamReader x(QByteArray::fromStdString(EntreeOdt(chemin, "content.xml")));
  bool dedans = false;
  while (!x.atEnd()) {
    x.readNext();
    if (!x.isStartElement()) continue;
    if (x.namespaceUri() == kTexte && (x.name() == u"bookmark" || x.name() == u"bookmark-start"))
      dedans = x.attributes().value(kTexte, "name") == QString::fromStdString(signet);
    else if (dedans && x.namespaceUri() == kDraw && x.name() == u"image")
      r.push_back(x.attributes().value(kXlink, "href").toString().toStdString());
  }
  return r;
}

std::string EntreeOdt(const std::string& chemin, const std::string& entree) {
  int erreur = 0;
  Archive z(zip_open(chemin.c_str(), ZIP_RDONLY, &erreur));
  if (!z) return {};
  return Lit(z.get(), entree.c_str()).toStdString();
}

}  // namespace orva
