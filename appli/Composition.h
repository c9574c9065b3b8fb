// The composition of the program, the top floor of the house: every subsystem's state registered
// by name (the table that the GUI and the scenario runner resolve), the menu entries bound to
// their commands, the routines that scenarios run by name, and the hooks through which a lower
// floor reaches a later subsystem. Start-up is beside it (appli/Demarrage.h).
#pragma once

namespace orva {

// Every table, setting and dialog back to its state before start-up, registered by name, and the
// menu entries bound to their commands.
void EnregistreTout();
// The network store reset (ReinitialiseNoyau), then EnregistreTout: the program as before
// start-up, for tests and for each scenario.
void ReinitialiseTout();
// Fills the table of Routines with the public operations of the subsystems; leaves the entries
// already there.
void EnregistreRoutines();

}  // namespace orva
