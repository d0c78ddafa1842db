// Starts like the game and enters high scores, without a window; each name is the score itself.
// usage: enter_scores STORE SCORE...

#include "platform/RegistryHive.h"
#include "screen/HighScoreTable.h"
#include "shell/mdlRegistry.h"

int main(int argc, char* argv[]) {
    RegistryHive hive(QString::fromLocal8Bit(argv[1]));
    mdlRegistry::Hive(&hive);
    CreateHighScores();
    for (int i = 2; i < argc; ++i) {
        const QString score = QString::fromLatin1(argv[i]);
        EnterHighScore({score, QStringLiteral("today"), score});
    }
}
