// String helpers on UTF-8 text and the Windows-1252 files of the system.
#include <gtest/gtest.h>

#include <sstream>

#include "noyau/Chaines.h"
#include "noyau/Erreurs.h"

namespace orva {
namespace {

TEST(Chaines, CompteLesCaracteresPasLesOctets) {
  std::string s = "Métro à Orléans";
  EXPECT_EQ(Len(s), 15);
  EXPECT_EQ(Left(s, 5), "Métro");
  EXPECT_EQ(Mid(s, 7, 1), "à");
  EXPECT_EQ(Mid(s, 9), "Orléans");
  EXPECT_EQ(Mid(s, 40), "");
  EXPECT_EQ(Right(s, 7), "Orléans");
  EXPECT_EQ(Left("ab", 10), "ab");
  EXPECT_THROW(Mid(s, 0), ErreurExecution);
  EXPECT_EQ(InStr(s, "à"), 7);
  EXPECT_EQ(InStr(8, s, "é"), 12);
  EXPECT_EQ(InStr(s, "z"), 0);
  EXPECT_EQ(UCase("orléans"), "ORLÉANS");
  EXPECT_EQ(LCase("ORLÉANS"), "orléans");
  EXPECT_EQ(Trim("  a b  "), "a b");
}

TEST(Chaines, ChainesFixes) {
  ChaineFixe<5> f;
  EXPECT_EQ(f.str(), "     ");
  f = "ab";
  EXPECT_EQ(f.str(), "ab   ");
  f = "abcdefgh";
  EXPECT_EQ(f.str(), "abcde");
  f = "ééééééé";
  EXPECT_EQ(f.str(), "ééééé");
  EXPECT_EQ(Fixe("x", 3), "x  ");
  std::string m = "000-000-000";
  RemplaceMid(m, 5, 3, "FER");
  EXPECT_EQ(m, "000-FER-000");
}

TEST(Chaines, Windows1252) {
  EXPECT_EQ(Cp1252VersUtf8("Orl\xE9" "ans \x80 \x9C"), "Orléans € œ");
  EXPECT_EQ(Utf8VersCp1252("Orléans € œ"), "Orl\xE9" "ans \x80 \x9C");
  EXPECT_EQ(Utf8VersCp1252("\xE4\xB8\xAD"), "?");  // not in the code page
  // A line valid in UTF-8 is taken as UTF-8, anything else as Windows-1252.
  EXPECT_EQ(DecodeLigne("Orléans"), "Orléans");
  EXPECT_EQ(DecodeLigne("Orl\xE9" "ans"), "Orléans");
  EXPECT_EQ(DecodeLigne("\xC3"), "Ã");
}

TEST(Chaines, LignesEtFinDeFichier) {
  std::istringstream in("a\r\nb\nc\rd");
  EXPECT_EQ(LitLigne(in), "a");
  EXPECT_EQ(LitLigne(in), "b");
  EXPECT_EQ(LitLigne(in), "c");
  EXPECT_FALSE(FinFichier(in));
  EXPECT_EQ(LitLigne(in), "d");
  EXPECT_TRUE(FinFichier(in));
  try {
    LitLigne(in);
    FAIL();
  } catch (const ErreurExecution& e) {
    EXPECT_EQ(e.Numero, ErrFinFichier);
  }
  std::istringstream vide("");
  EXPECT_TRUE(FinFichier(vide));
  EXPECT_THROW(LitLigne(vide), ErreurExecution);
  std::istringstream fin("x\r\n");
  LitLigne(fin);
  EXPECT_TRUE(FinFichier(fin));
  std::ostringstream out;
  EcritLigne(out, "Orléans");
  EXPECT_EQ(out.str(), "Orl\xE9" "ans\r\n");
}

}  // namespace
}  // namespace orva
