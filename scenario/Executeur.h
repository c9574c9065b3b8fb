// The run of one scenario, in its steps: the lines read, the answers at the head queued, the
// start-up as in the GUI, then the lines in order; modal dialogs run the lines that follow them.
#pragma once
#include <iosfwd>
#include <string>
#include <vector>

#include "scenario/PortScenario.h"

namespace orva {

class Executeur {
 public:
  // Installs the scenario's port; the former port and current folder come back at the end.
  Executeur(std::ostream& sortie, std::string dossierDepart);
  ~Executeur();
  Executeur(const Executeur&) = delete;
  Executeur& operator=(const Executeur&) = delete;

  void Lit(std::istream& scenario);
  // Queues the answer lines at the head of the scenario, resets every table and setting and runs
  // the start-up of the program with its data root searched in `racine` (the defaults when empty).
  void Demarre(const std::string& racine);
  // Runs the remaining lines; stops at a line that is not understood or at menSortie.
  void Execute();
  // Reports the answers no box took and returns the exit status.
  int Termine();

  PortScenario& Port() { return port_; }

 private:
  struct Ligne {
    long Numero;
    std::string Texte;
  };
  bool Suivante(Ligne& l);
  void ExecuteLigne(const Ligne& l);
  void AttendFermeture(Dialogue& d);
  [[noreturn]] void Arrete(const Ligne& l, const std::string& raison, const std::string& texte);

  void Agit(const Ligne& l, const Instruction& ins);
  void Affiche(const Ligne& l, const Instruction& ins);
  void Pose(const Ligne& l, const Instruction& ins);
  void Image(const Ligne& l, const Instruction& ins);
  void Souris(const Instruction& ins);

  std::vector<Ligne> lignes_;
  std::size_t suivante_ = 0;
  Evenements evenements_;
  PortScenario port_;
  Plateforme* ancienPort_;
  std::string ancienDossier_;
  bool fini_ = false;
};

}  // namespace orva
