// The metafile recorder: a context that writes Windows metafile records in memory (16-bit
// coordinates, objects numbered in the metafile's own table, lowest free slot first), and the
// life of closed metafiles: handles that can be played into any context, including another
// recorder, and read out as the bytes of the standard format (METAHEADER, records, end record).
#pragma once
#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "dessin/Contexte.h"

namespace orva {

using HandleMeta = int32_t;  // a closed metafile; 0 = none

// Record functions of the format that the recorder writes and the player reads.
enum FonctionMeta : uint16_t {
  MetaFin = 0x0000,
  MetaSetMapMode = 0x0103,
  MetaSelectObject = 0x012D,
  MetaDeleteObject = 0x01F0,
  MetaSetWindowExt = 0x020C,
  MetaLineTo = 0x0213,
  MetaMoveTo = 0x0214,
  MetaCreatePenIndirect = 0x02FA,
  MetaCreateFontIndirect = 0x02FB,
  MetaCreateBrushIndirect = 0x02FC,
  MetaPolygon = 0x0324,
  MetaPolyline = 0x0325,
  MetaEllipse = 0x0418,
  MetaRectangle = 0x041B,
  MetaTextOut = 0x0521,
};

class EnregistreurMeta : public Contexte {
 public:
  EnregistreurMeta();
  ~EnregistreurMeta() override;
  EnregistreurMeta(const EnregistreurMeta&) = delete;
  EnregistreurMeta& operator=(const EnregistreurMeta&) = delete;

  Objet SelectObject(Objet o) override;
  Objet GetStockObject(int n) override;
  void MoveToEx(int x, int y) override;
  void LineTo(int x, int y) override;
  void Polyline(const std::vector<PointI>& points) override;
  void Polygon(const std::vector<PointI>& points) override;
  void Ellipse(int x1, int y1, int x2, int y2) override;
  void Rectangle(int x1, int y1, int x2, int y2) override;
  void TextOut(int x, int y, const std::string& texte) override;
  void SetWindowExt(int largeur, int hauteur) override;
  void SetMapMode(int mode) override;
  void ObjetDetruit(Objet o) override;

  // The whole metafile: header, the records so far and the end record.
  std::vector<uint8_t> Octets() const;
  // The records so far, as words.
  const std::vector<uint16_t>& Mots() const { return mots_; }

 private:
  void Enregistre(uint16_t fonction, const std::vector<uint16_t>& parametres);
  int Emplacement(Objet o, const ObjetGdi& d);
  std::vector<uint16_t> mots_;         // the records
  uint32_t plusGrand_ = 3;             // largest record in words (the end record at least)
  std::vector<Objet> emplacements_;    // the metafile's object table; 0 = free slot
  std::map<Objet, int> connus_;        // object -> slot
  Objet stylo_, brosse_, police_;
};

// Plays records into a context as PlayMetaFile does, in as many parts as come: the objects that
// the records make live from one part to the next, and at the end (Termine, or the destructor)
// the objects selected in dc before are selected back and those the records made are deleted.
class LecteurMeta {
 public:
  explicit LecteurMeta(Contexte* dc, std::size_t objets = 0);
  ~LecteurMeta();
  LecteurMeta(const LecteurMeta&) = delete;
  LecteurMeta& operator=(const LecteurMeta&) = delete;

  // Plays the whole records from word pos to word fin; gives where it stopped.
  std::size_t Joue(const uint16_t* mots, std::size_t pos, std::size_t fin);
  // Plays the records that an open recording has made since the last call.
  void JoueSuite(const EnregistreurMeta& enregistrement);
  void Termine();

 private:
  Contexte* dc_;
  std::vector<Objet> table_;           // the metafile's object table as played
  Objet anciens_[3] = {0, 0, 0};       // pen, brush, font in dc before the first selection
  std::size_t suite_ = 0;              // words of the open recording played so far
};

// CreateMetaFileA with no file name: a new recording, owned by the process until it is closed.
Contexte* CreateMetaFile();
// Ends a recording made by CreateMetaFile and gives its metafile; 0 when dc is not one.
HandleMeta CloseMetaFile(Contexte* dc);
// Plays the records into dc: objects are created as the records say and deleted at the end,
// and the objects that were selected in dc before are selected back. False for a bad handle.
bool PlayMetaFile(Contexte* dc, HandleMeta h);
bool PlayMetaFileOctets(Contexte* dc, const std::vector<uint8_t>& octets);
bool DeleteMetaFile(HandleMeta h);
// A metafile number used up, as by a metafile closed and deleted at once: the numbers that
// follow are those they would have been.
void PasseNumeroMeta();
// GetMetaFileBitsEx: the bytes of a metafile, empty for a bad handle.
std::vector<uint8_t> GetMetaFileBits(HandleMeta h);
// SetMetaFileBitsEx: a metafile made from bytes (not checked until played).
HandleMeta SetMetaFileBits(const std::vector<uint8_t>& octets);
// Drops every open recording and every metafile (the state before start-up).
void LibereMetaFichiers();

}  // namespace orva
