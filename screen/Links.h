#pragma once

#include <QString>

// The web addresses of the game, and their texts in the window.
namespace Links {

inline const QString kHomePage = QStringLiteral("https://tesselor.example/");
inline const QString kHomeText = QStringLiteral("tesselor.example");
inline const QString kProductPage = QStringLiteral("https://tesselor.example/play");
inline const QString kProductText = QStringLiteral("tesselor.example/play");

}  // namespace Links
