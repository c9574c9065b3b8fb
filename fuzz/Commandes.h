// The readers' commands on bytes, shared by the fuzz targets and their regression tests. Each
// one reads the bytes through the stream form of the reader as its command does, then runs
// what the command runs after the load, then redraws the view into Ima's raster context, each
// step a command of its own under the command handler: a run-time error ends that command with
// its message and the next one works on what was left.
#pragma once
#include <cstdint>
#include <string_view>

namespace orva {

// Once a process: the offscreen application that text needs.
void PrepareFuzz();
// The modes and the view of start-up, on a small picture.
void VueDeDepart();
// Before each input: every table and setting as before start-up, the silent platform port that
// gives every box its default answer, then VueDeDepart.
void RemetEtatFuzz();

void CommandeNoeudsLong(std::string_view octets);
void CommandeNoeudsCourt(std::string_view octets);
void CommandeArcsLong(std::string_view octets);   // on the standard towns
void CommandeArcsCourt(std::string_view octets);  // on the towns of the short profile
void CommandeArcsAjoutes(std::string_view octets);  // after the arcs of a loaded network
void CommandeNoeudVal(std::string_view octets);   // read as both value files
void CommandeArcVal(std::string_view octets);
void CommandeFacettes(std::string_view octets);
void CommandeComparaison(std::string_view octets);  // modes 0 and 99, then the coloured arcs
void CommandeMetafichier(std::string_view octets);  // the background image of the digitising
void CommandeScenario(std::string_view octets);     // every line through the parser

}  // namespace orva
