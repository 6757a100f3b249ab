// The six sounds of the table.
#pragma once

#include "synth.h"

Samples StartSound();
Samples CardDownSound();
Samples CardUpSound();
Samples AutoPlaySound();
Samples UndoSound();
Samples WinSound();
