// OpenDocument text files for the report: the templates (a title, bookmarks where pictures go),
// and the placing of a picture at a bookmark, scaled to the width of the text. The files are zip
// archives (libzip) of XML parts (Qt's stream reader and writer).
#pragma once
#include <QImage>
#include <string>
#include <vector>

namespace orva {

// Writes a template: a title, a paragraph with the bookmark "Image", and, when `legende`, a
// paragraph with the bookmark "Légende"; A4, 2 cm margins. Entries stored, dated 1 January 2000:
// the same bytes on every machine. False when the file cannot be written.
bool CreeModeleOdt(const std::string& chemin, const std::string& titre, bool legende);

// Puts the picture as a PNG in the document and a frame that shows it after the bookmark, as
// wide as the text. Returns an empty text, or what went wrong.
std::string InsereImageOdt(const std::string& chemin, const std::string& signet, const QImage& image);

// The names of the bookmarks of a document, and the pictures that follow each bookmark (for the
// tests and the checks of a report).
std::vector<std::string> SignetsOdt(const std::string& chemin);
std::vector<std::string> ImagesApresSignetOdt(const std::string& chemin, const std::string& signet);
// An entry of the archive, empty when missing.
std::string EntreeOdt(const std::string& chemin, const std::string& entree);

}  // namespace orva
