#pragma once
// The rows of the device dialogs that show one device a row, built of control
// arrays indexed by row (the Arduino boards, the OSC connections). Positions
// are given in twips, the units of the forms, 15 to a pixel. Row i stands
// 480 twips below row i - 1; the rows beyond the count in use stay hidden, and
// OK, Cancel and the foot of the form follow the last row in use.
#include <QString>
#include <QWidget>
#include "support/Controls.h"

constexpr int TwipsToPixels(int twips) { return twips / 15; }

constexpr int kRowPitch = 480;      // from one row to the next
constexpr int kFirstRowTop = 600;   // top of row 0, under the column heads
constexpr int kColumnHeadTop = 240;
constexpr int kRowHeight = 315;

// The top of row `row`, in twips.
constexpr int RowTop(int row) { return kFirstRowTop + row * kRowPitch; }

// Creates element `row` of the control array `name` ("TextLabel(3)") on `form`,
// hidden, in its row at `left` and `width` twips.
template <typename W>
W* RowControl(QWidget* form, const QString& name, int row, int left, int width)
{
    auto* control = named(new W(form), arrayName(name, row));
    control->setGeometry(TwipsToPixels(left), TwipsToPixels(RowTop(row)), TwipsToPixels(width),
                         TwipsToPixels(kRowHeight));
    control->hide();
    return control;
}

// Fits the form to `count` rows: OK and Cancel take the vertical position
// count x 480 + 1050 and the form the height count x 480 + 2000, so the rows
// beyond are cut off.
void FitFormToRows(QWidget* form, int count, QWidget* ok, QWidget* cancel);
