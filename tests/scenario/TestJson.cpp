// The JSON of the events: escapes, invalid bytes, key order.
#include <gtest/gtest.h>

#include "scenario/Json.h"

namespace orva {
namespace {

TEST(Json, EchappeGuillemetsEtControles) {
  struct {
    std::string texte, attendu;
  } const cas[] = {
      {"", R"("")"},
      {"simple", R"("simple")"},
      {"a\"b", R"("a\"b")"},
      {"c:\\data\\", R"("c:\\data\\")"},
      {"l1\rl2\nl3\tx", R"("l1\rl2\nl3\tx")"},
      {std::string("\b\f\x01\x1f", 4), R"("\u0008\u000c\u0001\u001f")"},
      {std::string("nul\0x", 5), R"("nul\u0000x")"},
      {"\x7f", "\"\x7f\""},
      // Non-ASCII characters stand as they are.
      {"Coûts, é, €, 𝄞", "\"Coûts, é, €, 𝄞\""},
  };
  for (const auto& c : cas) EXPECT_EQ(ChaineJson(c.texte), c.attendu) << c.texte;
}

TEST(Json, OctetsQuiNeSontPasUtf8) {
  // Windows-1252 "é", a lone continuation byte, a truncated sequence, an overlong "/", a surrogate.
  EXPECT_EQ(ChaineJson("caf\xE9"), "\"caf\xEF\xBF\xBD\"");
  EXPECT_EQ(ChaineJson("\x80x"), "\"\xEF\xBF\xBDx\"");
  EXPECT_EQ(ChaineJson("\xE2\x82"), "\"\xEF\xBF\xBD\xEF\xBF\xBD\"");
  EXPECT_EQ(ChaineJson("\xC0\xAF"), "\"\xEF\xBF\xBD\xEF\xBF\xBD\"");
  EXPECT_EQ(ChaineJson("\xED\xA0\x80"), "\"\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\"");
}

TEST(Json, ObjetDansLOrdreDesCles) {
  ObjetJson o("saisie");
  o.Texte("titre", "T").TexteOuNul("reponse", std::nullopt).Booleen("defaut", true).Entier("ligne", -3);
  EXPECT_EQ(o.Ligne(), R"({"type":"saisie","titre":"T","reponse":null,"defaut":true,"ligne":-3})");
  EXPECT_EQ(ObjetJson("x").TexteOuNul("r", std::string("a\r")).Booleen("b", false).Ligne(),
            R"({"type":"x","r":"a\r","b":false})");
}

}  // namespace
}  // namespace orva
