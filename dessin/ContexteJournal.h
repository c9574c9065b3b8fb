// The journal context, for tests: every call becomes a line of text ("Polyline 10,20 30,40",
// "Ellipse 12,12,8,8", "SelectObject Stylo(0,1,0x000080)", "TextOut 5,7 \"ROME\""), kept with
// the pen, brush, font and text colour in force at that moment, so that a layer can be checked
// call by call. Deletions of objects it has had selected are written too ("DeleteObject ...").
#pragma once
#include <string>
#include <vector>

#include "dessin/Contexte.h"

namespace orva {

struct EntreeJournal {
  std::string Texte;
  ObjetGdi Stylo, Brosse, Police;
  Couleur CouleurTexte = 0;
};

class ContexteJournal : public Contexte {
 public:
  ContexteJournal();
  ~ContexteJournal() override;
  ContexteJournal(const ContexteJournal&) = delete;
  ContexteJournal& operator=(const ContexteJournal&) = delete;

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
  void AdopteObjets(Objet stylo, Objet brosse, Objet police, std::function<Couleur()> couleurTexte) override;
  void ObjetDetruit(Objet o) override;

  const std::vector<EntreeJournal>& Entrees() const { return entrees_; }
  std::vector<std::string> Lignes() const;
  // The lines that begin with one of the given words ("Polyline", "Ellipse"...).
  std::vector<std::string> Lignes(const std::vector<std::string>& mots) const;
  void Efface() { entrees_.clear(); }

 private:
  void Note(std::string texte);
  std::vector<EntreeJournal> entrees_;
  std::vector<Objet> vus_;
  Objet stylo_, brosse_, police_, policeDefaut_;
  std::function<Couleur()> couleurTexte_;
};

}  // namespace orva
