#include "vue/Angles.h"

namespace orva {

void EnregistreAngles() {
  EtatAngles& d = Angles;
  d = EtatAngles{};
  d.Nom = "Angles";
  d.Caption = "Angles de vue de la représentation";
  d.ListeModifiable1.Editable = true;
  d.Ajoute("ListeModifiable1", d.ListeModifiable1);
  Dialogues().push_back(&d);
}

}  // namespace orva
