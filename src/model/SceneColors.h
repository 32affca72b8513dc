#pragma once
// Colour codes of the scene rows. 0 is the default, drawn 0xDDDDDD; 8 draws
// black; any other code N is entry N of the classic 16-colour console palette
// (9 blue, 10 green, 11 cyan, 12 red, 13 magenta, 14 yellow). A code outside
// 0 to 15 has no colour, and the row keeps the list's own text colour.
#include <optional>
#include <QColor>
#include <QtGlobal>

std::optional<QColor> SceneColor(qint16 code);
