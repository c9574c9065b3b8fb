// The pairs of a DXF file: a group code and its value, joined by a carriage return, on one line
// of the file. Every pair of the DXF output goes through these writers, one per type of value:
// texts as they stand, 16- and 32-bit whole numbers in decimal, 32- and 64-bit reals in their
// plain text (no fixed decimals, "." as decimal mark).
#pragma once
#include <cstdint>
#include <ostream>
#include <string>
#include <string_view>

namespace orva {

class PairesDXF {
 public:
  explicit PairesDXF(std::ostream& out) : out_(out) {}
  void Texte(int code, std::string_view valeur);
  void Entier(int code, long valeur);
  void Reel(int code, float valeur);
  void Reel(int code, double valeur);
  // A point of three coordinates under the codes c, c + 10, c + 20 (10/20/30, 11/21/31...).
  void Point(int code, float x, float y, float z);
  void Point(int code, double x, double y, double z);

 private:
  void Ecrit(int code, std::string_view valeur);  // the value already in the file's encoding
  std::ostream& out_;
  std::string ligne_;  // the pair being made, its storage kept from one pair to the next
};

}  // namespace orva
