#include "devices/DeviceRows.h"
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include "support/Controls.h"

namespace {
constexpr int kRowHeight = 315;   // twips
}

void PlaceTwips(QWidget* control, int left, int top, int width, int height)
{
    control->setGeometry(Twips(left), Twips(top), Twips(width), Twips(height));
}

ControlRow::ControlRow(QWidget* form, int index, int top) : m_form(form), m_index(index), m_top(top) {}

template <typename W>
W* ControlRow::add(W* control, const QString& name, int left, int width)
{
    named(control, arrayName(name, m_index));
    PlaceTwips(control, left, m_top, width, kRowHeight);
    m_controls << control;
    return control;
}

QLabel* ControlRow::label(const QString& name, const QString& caption, int left, int width)
{
    return add(new QLabel(caption, m_form), name, left, width);
}

QLineEdit* ControlRow::text(const QString& name, int left, int width)
{
    return add(new QLineEdit(m_form), name, left, width);
}

QCheckBox* ControlRow::check(const QString& name, const QString& caption, int left, int width)
{
    return add(new QCheckBox(caption, m_form), name, left, width);
}

QComboBox* ControlRow::combo(const QString& name, int left, int width)
{
    return add(new QComboBox(m_form), name, left, width);
}

QPushButton* ControlRow::button(const QString& name, const QString& caption, int left, int width)
{
    return add(new QPushButton(caption, m_form), name, left, width);
}

InOutButtons ControlRow::inOut(const QString& frame, int left, int width)
{
    QWidget* holder = m_form;
    int x = left, y = m_top;
    if (!frame.isEmpty()) {
        auto* box = add(new QGroupBox(m_form), frame, left, width);
        box->setFlat(true);
        holder = box;
        x = 0;
        y = 0;
    }
    InOutButtons pair;
    pair.in = named(new QRadioButton(QStringLiteral("In"), holder), arrayName(QStringLiteral("optIn"), m_index));
    pair.out = named(new QRadioButton(QStringLiteral("Out"), holder), arrayName(QStringLiteral("optOut"), m_index));
    PlaceTwips(pair.in, x, y, width / 2, kRowHeight);
    PlaceTwips(pair.out, x + width / 2, y, width / 2, kRowHeight);
    auto* group = new QButtonGroup(holder);
    group->addButton(pair.in);
    group->addButton(pair.out);
    if (frame.isEmpty())
        m_controls << pair.in << pair.out;
    return pair;
}

void ControlRow::setVisible(bool visible)
{
    for (QWidget* c : m_controls)
        c->setVisible(visible);
}
