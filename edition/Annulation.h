// Undo of the editing: before each command of ModifArcs, ModifNoeuds, the digitising and the
// cleaning, a snapshot of the network (nodes, short names, painting order, arcs, their counts,
// the list of merged arc files); the commands that changed something leave it as a step that
// "Annuler la dernière modification" (menAnnuler, menAnnulerNoeuds, Ctrl+Z) puts back.
#pragma once
#include <cstddef>
#include <memory>

namespace orva {

// At most this many steps, and fewer when the snapshots of a large network would take more than
// the memory budget; the oldest go first.
constexpr std::size_t MaxEtapesAnnulables = 20;
constexpr std::size_t BudgetAnnulation = 128u * 1024u * 1024u;

struct Instantane;

// An editing command for its length. The outermost step of a command takes the snapshot; when
// the step ends (however the command ends) and the network differs from the snapshot, the
// snapshot is kept as a step to undo. Steps inside a step belong to it.
class EtapeAnnulable {
 public:
  EtapeAnnulable();
  ~EtapeAnnulable();
  EtapeAnnulable(const EtapeAnnulable&) = delete;
  EtapeAnnulable& operator=(const EtapeAnnulable&) = delete;
  // Puts the network back as the outermost step found it: a change that could not be completed
  // (an arc removed and not made again). The step then leaves nothing to undo.
  void Restaure();

 private:
  std::unique_ptr<Instantane> avant_;
};

// The steps that can be undone.
std::size_t NombreEtapesAnnulables();

// Undoes the last step: the tables as they were, then the projection, the indices of arcs, their
// orientation, the mode sets, the node lists of the dialogs (keeping their choice) and the
// redraw. When the network was changed since by another command (a file loaded, a timetable
// edited), the steps no longer apply: they are dropped, with a message.
void menAnnuler();

// No step, both menu entries disabled.
void EnregistreAnnulation();

}  // namespace orva
