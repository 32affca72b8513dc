#pragma once
// The rows of control arrays that the device dialogs are made of: each row is
// a set of controls at one height, element i of an array named "Name(i)".
// Places and sizes are given in twips, 15 to a pixel, as the dialogs' own
// positions are.
#include <QList>
#include <QString>
#include "support/Controls.h"
#include "support/RuntimeError.h"

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QWidget;

// Element i of a control array; an index outside the array is a range error.
template <typename T>
T* At(const QList<T*>& array, int i)
{
    if (i < 0 || i >= array.size())
        throw RangeError();
    return array[i];
}

// Places a control at a position given in twips.
void PlaceTwips(QWidget* control, int left, int top, int width, int height);

// The two option buttons of a row, exclusive within the row only.
struct InOutButtons {
    QRadioButton* in = nullptr;
    QRadioButton* out = nullptr;
};

class ControlRow {
public:
    // Row `index` of `form`, with its controls at `top` (twips).
    ControlRow(QWidget* form, int index, int top);

    QLabel* label(const QString& name, const QString& caption, int left, int width);
    QLineEdit* text(const QString& name, int left, int width);
    QCheckBox* check(const QString& name, const QString& caption, int left, int width);
    QComboBox* combo(const QString& name, int left, int width);
    QPushButton* button(const QString& name, const QString& caption, int left, int width);
    // A frame named `frame`(i) holding the option buttons optIn(i) and optOut(i);
    // with an empty frame name the buttons stand on the form itself.
    InOutButtons inOut(const QString& frame, int left, int width);

    // Shows or hides every control of the row.
    void setVisible(bool visible);
    const QList<QWidget*>& controls() const { return m_controls; }

private:
    template <typename W>
    W* add(W* control, const QString& name, int left, int width);

    QWidget* m_form;
    int m_index;
    int m_top;
    QList<QWidget*> m_controls;
};
