// Exploration of a series of node value files that differ by a two-digit number in their names
// (stm01.dat, stm02.dat...): each file of the series is read and drawn as discs in turn, and its
// picture may be saved as NN.bmp in the folder of images.
#pragma once

namespace orva {

void menExploration();

}  // namespace orva
