// The game's own player of sounds: plays each file named on a line of standard input, and says whether it
// could.

#include <QFile>
#include <iostream>

#include "platform/SoundPlayer.h"

int main() {
    SoundPlayer player;
    for (std::string name; std::getline(std::cin, name);) {
        QFile file(QString::fromStdString(name));
        std::cout << (file.open(QIODevice::ReadOnly) && player.Play(file.readAll())) << std::endl;
    }
}
