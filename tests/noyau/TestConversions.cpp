// Number conversions and formats against the values the system's files and dialogs rely on.
#include <gtest/gtest.h>

#include <clocale>
#include <string>

#include "noyau/Conversions.h"
#include "noyau/Erreurs.h"

namespace orva {
namespace {

TEST(Val, TableDesCas) {
  struct { const char* texte; double attendu; } cas[] = {
      {"", 0}, {"   ", 0}, {"12", 12}, {"  12  ", 12}, {"12,5", 12}, {"12.5", 12.5}, {"-", 0},
      {"1e", 1}, {"1e3", 1000}, {"1E-2", 0.01}, {"1D2", 100}, {"-3.25xyz", -3.25}, {".5", 0.5},
      {"1 2 3", 123}, {"abc", 0}, {"32768", 32768}, {"65536", 65536}, {"+7", 7}, {"&H10", 16},
      {"&HFFFF", -1}, {"&O17", 15}, {"1.2.3", 1.2}, {"0000.500", 0.5}, {"-0", 0}, {"\t4", 4},
  };
  for (auto& c : cas) EXPECT_DOUBLE_EQ(Val(c.texte), c.attendu) << '"' << c.texte << '"';
  // Texts longer than the short buffer: the same rules.
  EXPECT_DOUBLE_EQ(Val(std::string(80, ' ') + "-12.5e1xyz"), -125);
  EXPECT_DOUBLE_EQ(Val("1" + std::string(70, ' ') + "2"), 12);
  EXPECT_DOUBLE_EQ(Val(std::string(100, '7')), 7.7777777777777777e99);
  EXPECT_DOUBLE_EQ(Val("&H" + std::string(70, ' ') + "FF"), 255);
}

TEST(Val, DepassementDuReel) {
  EXPECT_THROW(Val("1e400"), ErreurExecution);
  EXPECT_EQ(Val("1e-400"), 0);
}

TEST(CInt, ArrondiPairEtDepassement) {
  EXPECT_EQ(CInt(2.5), 2);
  EXPECT_EQ(CInt(3.5), 4);
  EXPECT_EQ(CInt(-2.5), -2);
  EXPECT_EQ(CInt(32767), 32767);
  EXPECT_EQ(CInt(-32768), -32768);
  EXPECT_EQ(CInt(32767.4), 32767);
  EXPECT_EQ(CInt(-32768.5), -32768);
  try {
    CInt(32768);
    FAIL();
  } catch (const ErreurExecution& e) {
    EXPECT_EQ(e.Numero, ErrDepassement);
    EXPECT_EQ(e.Texte(), "Dépassement de capacité");
  }
  EXPECT_THROW(CInt(32767.5), ErreurExecution);
  EXPECT_THROW(CInt(65536), ErreurExecution);
  EXPECT_EQ(CLng(2147483647.0), 2147483647);
  EXPECT_THROW(CLng(2147483648.0), ErreurExecution);
  EXPECT_EQ(CLng(0.5), 0);
  EXPECT_EQ(CLng(1.5), 2);
}

TEST(Int, PlancherEtTroncature) {
  EXPECT_EQ(Int(-1.5), -2);
  EXPECT_EQ(Int(1.5), 1);
  EXPECT_EQ(Fix(-1.5), -1);
}

TEST(Format, Motifs) {
  struct { double v; const char* motif; const char* attendu; } cas[] = {
      {12.5, "0000.000", "0012.500"},
      {-12.5, "0000.000", "-0012.500"},
      {12345.6789, "0000.000", "12345.679"},
      {157, "0000000000", "0000000157"},
      {330001, "0000000000", "0000330001"},
      {12.5, "####", "13"},
      {0, "####", ""},
      {0.5, "####.###", ".5"},
      {12.3456, "####.###", "12.346"},
      {0, "####.###", "."},
      {1.123456789, "##.#####", "1.12346"},
      {7, "00", "07"},
      {123, "00", "123"},
      {2.005, "0.00", "2.01"},
      {0.125, "0.00", "0.13"},
      {-0.001, "0.00", "0.00"},
      {12.5, "####.##", "12.5"},
      {1234.5, "###", "1235"},
      {1234.5, "fixed", "1234.50"},
      {1234.5, "Fixed", "1234.50"},
      {1234567.891, "Standard", "1,234,567.89"},
      {0.5, "Standard", "0.50"},
      {930, "0000", "0930"},
      {12.5, "0000.00000", "0012.50000"},
      {9.9996, "0000.000", "0010.000"},
  };
  for (auto& c : cas) EXPECT_EQ(FormatFichier(c.v, c.motif), c.attendu) << c.v << " " << c.motif;
}

TEST(Format, TexteNumeriqueOuNon) {
  EXPECT_EQ(FormatTexte("  12.34567", "####.###"), "12.346");
  EXPECT_EQ(FormatTexte("abc", "####.###"), "abc");
  EXPECT_EQ(FormatTexte("12,5", "####.###"), "12,5");
  EXPECT_EQ(FormatTexte("", "####.###"), "");
  EXPECT_EQ(FormatTexte("-0004.500", "####.###"), "-4.5");
}

TEST(Str, BlancDeTeteEtZeroOmis) {
  EXPECT_EQ(Str(5L), " 5");
  EXPECT_EQ(Str(-5L), "-5");
  EXPECT_EQ(Str(0.5), " .5");
  EXPECT_EQ(Str(-0.5), "-.5");
  EXPECT_EQ(Str(12.25), " 12.25");
  EXPECT_EQ(CStr(0.5), "0.5");
  EXPECT_EQ(CStr(0.5, ','), "0,5");
  EXPECT_EQ(CStr(1e20), "1E+20");
  EXPECT_EQ(CStr(0.00001), "1E-05");
  EXPECT_EQ(CStr(0.0001), "0.0001");
  EXPECT_EQ(CStr(0.1f), "0.1");
  EXPECT_EQ(CStr(1.0 / 3), "0.333333333333333");
}

TEST(TexteCourt, RelitLaMemeValeur) {
  EXPECT_EQ(TexteCourt(0.1f), "0.1");
  EXPECT_EQ(TexteCourt(0.1), "0.1");
  EXPECT_EQ(TexteCourt(static_cast<double>(0.1f)), "0.10000000149011612");
  EXPECT_EQ(TexteCourt(3.0), "3");
  EXPECT_EQ(TexteCourt(-1.5f), "-1.5");
}

// Files keep "." whatever the locale; displayed values follow it.
TEST(Format, LocaleFrancaise) {
  const char* avant = std::setlocale(LC_NUMERIC, nullptr);
  std::string sauve = avant ? avant : "C";
  if (!std::setlocale(LC_NUMERIC, "fr_FR.UTF-8")) GTEST_SKIP() << "locale fr_FR.UTF-8 absente";
  EXPECT_EQ(FormatFichier(12.5, "0000.000"), "0012.500");
  EXPECT_EQ(Format(12.5, "0.00"), "12,50");
  EXPECT_DOUBLE_EQ(Val("12.5"), 12.5);
  std::setlocale(LC_NUMERIC, sauve.c_str());
}

}  // namespace
}  // namespace orva
