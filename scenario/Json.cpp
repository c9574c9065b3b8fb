#include "scenario/Json.h"

#include <cstdint>

namespace orva {

namespace {

// Length of the valid UTF-8 sequence at s[i], 0 when the bytes there are not one.
std::size_t LongueurUtf8(std::string_view s, std::size_t i) {
  const auto o = [&](std::size_t k) { return static_cast<unsigned char>(s[k]); };
  const unsigned char c = o(i);
  std::size_t n;
  uint32_t point;
  if (c >= 0xC2 && c <= 0xDF) {
    n = 2;
    point = c & 0x1Fu;
  } else if (c >= 0xE0 && c <= 0xEF) {
    n = 3;
    point = c & 0x0Fu;
  } else if (c >= 0xF0 && c <= 0xF4) {
    n = 4;
    point = c & 0x07u;
  } else {
    return 0;
  }
  if (i + n > s.size()) return 0;
  for (std::size_t k = 1; k < n; ++k) {
    if ((o(i + k) & 0xC0u) != 0x80u) return 0;
    point = (point << 6) | (o(i + k) & 0x3Fu);
  }
  // Overlong forms, surrogates and points beyond U+10FFFF are not UTF-8.
  if ((n == 3 && point < 0x800) || (n == 4 && point < 0x10000) || point > 0x10FFFF ||
      (point >= 0xD800 && point <= 0xDFFF))
    return 0;
  return n;
}

}  // namespace

std::string ChaineJson(std::string_view texte) {
  static const char kHex[] = "0123456789abcdef";
  std::string r;
  r.reserve(texte.size() + 2);
  r += '"';
  for (std::size_t i = 0; i < texte.size();) {
    const unsigned char c = static_cast<unsigned char>(texte[i]);
    if (c >= 0x80) {
      std::size_t n = LongueurUtf8(texte, i);
      if (n == 0) {
        r += "\xEF\xBF\xBD";
        ++i;
      } else {
        r.append(texte.substr(i, n));
        i += n;
      }
      continue;
    }
    switch (c) {
      case '"': r += "\\\""; break;
      case '\\': r += "\\\\"; break;
      case '\r': r += "\\r"; break;
      case '\n': r += "\\n"; break;
      case '\t': r += "\\t"; break;
      default:
        if (c < 0x20) {
          r += "\\u00";
          r += kHex[c >> 4];
          r += kHex[c & 0x0F];
        } else {
          r += static_cast<char>(c);
        }
    }
    ++i;
  }
  r += '"';
  return r;
}

ObjetJson& ObjetJson::Cle(std::string_view cle) {
  if (!corps_.empty()) corps_ += ',';
  corps_ += ChaineJson(cle);
  corps_ += ':';
  return *this;
}

ObjetJson& ObjetJson::Texte(std::string_view cle, std::string_view valeur) {
  Cle(cle);
  corps_ += ChaineJson(valeur);
  return *this;
}

ObjetJson& ObjetJson::TexteOuNul(std::string_view cle, const std::optional<std::string>& valeur) {
  Cle(cle);
  corps_ += valeur ? ChaineJson(*valeur) : std::string("null");
  return *this;
}

ObjetJson& ObjetJson::Entier(std::string_view cle, long valeur) {
  Cle(cle);
  corps_ += std::to_string(valeur);
  return *this;
}

ObjetJson& ObjetJson::Booleen(std::string_view cle, bool valeur) {
  Cle(cle);
  corps_ += valeur ? "true" : "false";
  return *this;
}

}  // namespace orva
