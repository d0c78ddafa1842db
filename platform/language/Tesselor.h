#pragma once

#include <QCoreApplication>

// What a player reads or hears: Tesselor::tr("...") in the player's language, at any time after
// ChooseLanguage.
class Tesselor {
    Q_DECLARE_TR_FUNCTIONS(Tesselor)
};
