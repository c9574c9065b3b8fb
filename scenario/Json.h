// The JSON of the scenario's events: one object a line, keys in the order they are added.
#pragma once
#include <optional>
#include <string>
#include <string_view>

namespace orva {

// A JSON string literal of a UTF-8 text: quote, backslash, CR, LF and tab escaped, the other
// control characters as \u00xx, other characters as they are; a byte that is not part of valid
// UTF-8 becomes U+FFFD so that the line stays valid JSON.
std::string ChaineJson(std::string_view texte);

// One JSON object, built key by key.
class ObjetJson {
 public:
  explicit ObjetJson(std::string_view type) { Texte("type", type); }
  ObjetJson& Texte(std::string_view cle, std::string_view valeur);
  // null when there is no value (a cancelled answer).
  ObjetJson& TexteOuNul(std::string_view cle, const std::optional<std::string>& valeur);
  ObjetJson& Entier(std::string_view cle, long valeur);
  ObjetJson& Booleen(std::string_view cle, bool valeur);
  // The object on one line, without the line end.
  std::string Ligne() const { return "{" + corps_ + "}"; }

 private:
  ObjetJson& Cle(std::string_view cle);
  std::string corps_;
};

}  // namespace orva
