#pragma once
// Naming of controls: every control carries its name as objectName, and
// element i of a control array is "Name(i)". Positions and sizes of the forms
// are given in twips, 15 to a pixel.
#include <QString>

constexpr int Twips(int twips) { return twips / 15; }

template <typename W>
W* named(W* widget, const QString& name)
{
    widget->setObjectName(name);
    return widget;
}

inline QString arrayName(const QString& name, int index)
{
    return QStringLiteral("%1(%2)").arg(name).arg(index);
}
