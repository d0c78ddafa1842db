#pragma once

#include <functional>

#include "model/RandomSource.h"
#include "platform/desktop/Dialogs.h"
#include "platform/desktop/Time.h"
#include "platform/files/ProgramFolder.h"
#include "platform/sound/SoundFiles.h"

// What the game window needs from outside. All of it must outlive the window.
struct World {
    Time& time;
    RandomSource& random;
    Dialogs& dialogs;
    SoundFiles& soundFiles;
    ProgramFolder folder;
    std::function<void()> endAtOnce;                  // ends the process without unloading anything
    std::function<void(const QString&)> openAddress;  // shows a web address in the player's browser
};
