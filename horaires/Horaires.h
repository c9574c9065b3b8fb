// The timetables as one subsystem: its three dialogs, its settings, and the buttons of the
// editing dialogs that open them.
#pragma once

namespace orva {

// Registers HorairesArcs, Trains and HorairesNoeuds with their commands and settings, connects
// the buttons "Dév. hor.", "Optimise", "Train" and "Vérifier", the buttons BtnHoraires of
// ModifArcs and ModifNoeuds, and the closing of the timetable dialogs after an arc file is merged.
// Runs after the editing dialogs are registered.
void EnregistreHoraires();

}  // namespace orva
