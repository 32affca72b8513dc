#include "devices/cScrollBar.h"
#include <QWidget>
#include "devices/ModuleScrollBar.h"
#include "support/Controls.h"
#include "support/Convert.h"
#include "support/OnError.h"
#include "support/RuntimeError.h"

namespace {

constexpr int kSmallChange = 50;
constexpr int kLargeChange = 100;
constexpr int kSlack = 50;   // added to the maximum, and its least value

QScrollBar& present(const QPointer<QScrollBar>& bar)
{
    if (!bar)
        throw RuntimeError(QStringLiteral("Object variable not set"));
    return *bar;
}

// The maximum of a bar of `length` over controls that end at `end`.
int maximumFor(int length, int end)
{
    return length >= end ? length - end + kSlack : end - length + kSlack;
}

// True for a control that a frame of fixed meaning or a status bar keeps at the foot.
bool isFixedStrip(const QWidget* control)
{
    return Holds([&] {
        return TypeName(control) == QStringLiteral("StatusBar") || DefaultText(control) == QStringLiteral("FrameOK");
    });
}

// True for a control that a move passes over; `head` exempts "FrameHead" as well.
bool isExempt(const QWidget* control, bool head)
{
    if (Holds([&] {
            const QString type = TypeName(control);
            const QString text = DefaultText(control);
            return type == QStringLiteral("VScrollBar") || type == QStringLiteral("HScrollBar")
                || text == QStringLiteral("FrameOK") || (head && text == QStringLiteral("FrameHead"));
        }))
        return true;
    // Inside a captioned container it moves with the container.
    return Holds([&] { return !ContainerCaption(control).isEmpty(); });
}

} // namespace

cScrollBar::~cScrollBar()
{
    for (const auto& connection : m_events)
        QObject::disconnect(connection);
}

QScrollBar& cScrollBar::bar() { return present(ScrollBar); }
QScrollBar& cScrollBar::barH() { return present(ScrollBarH); }

void cScrollBar::create(QWidget* form, Qt::Orientation orientation)
{
    const bool vertical = orientation == Qt::Vertical;
    auto* made = named(new QScrollBar(orientation, form), vertical ? QStringLiteral("ScrollBar1") : QStringLiteral("ScrollBar2"));
    // A new bar has the thickness the style gives a scroll bar.
    if (vertical)
        made->resize(made->sizeHint().width(), made->height());
    else
        made->resize(made->width(), made->sizeHint().height());
    // The change event comes with every move the person makes, the scroll event
    // while the thumb is dragged; a change made by code raises neither.
    if (vertical) {
        ScrollBar = made;
        m_events << QObject::connect(made, &QScrollBar::actionTriggered, made, [this] { ScrollBar_Change(); });
        m_events << QObject::connect(made, &QScrollBar::sliderMoved, made, [this] { ScrollBar_Scroll(); });
    } else {
        ScrollBarH = made;
        m_events << QObject::connect(made, &QScrollBar::actionTriggered, made, [this] { ScrollBarH_Change(); });
        m_events << QObject::connect(made, &QScrollBar::sliderMoved, made, [this] { ScrollBarH_Scroll(); });
    }
}

void cScrollBar::DibujarScrollBarVert(QWidget* form)
{
    if (!m_bCreated) {
        Skip([&] { create(form, Qt::Vertical); });
        Skip([&] { bar().setMaximum(ToInteger(QString::number(form->frameGeometry().height()))); });
        layoutVert(form);
        Skip([&] { bar().setVisible(true); });
        Skip([&] { bar().raise(); });
        Skip([&] { bar().setSingleStep(kSmallChange); });
        Skip([&] { bar().setPageStep(kLargeChange); });
        m_bCreated = true;
        iLastValue = 0;
    }
    layoutVert(form);
}

void cScrollBar::DibujarScrollBarHoriz(QWidget* form)
{
    if (!m_bCreated) {
        Skip([&] { create(form, Qt::Horizontal); });
        Skip([&] { barH().setMaximum(ToInteger(QString::number(form->frameGeometry().width()))); });
        layoutHoriz(form);
        Skip([&] { barH().setVisible(true); });
        Skip([&] { barH().raise(); });
        Skip([&] { barH().setSingleStep(kSmallChange); });
        Skip([&] { barH().setPageStep(kLargeChange); });
        m_bCreated = true;
        iLastValue = 0;
    }
    layoutHoriz(form);
}

// The bottom is a running value: a control counts only when its top lies below
// the bottom reached so far, so it is the bottom of the control whose top comes
// last against that value, not the greatest bottom of all.
void cScrollBar::layoutVert(QWidget* form)
{
    int iBottom = 0;
    int iFixed = 0;
    for (QWidget* control : FormControls(form)) {
        Skip([&] {
            if (control->y() > iBottom)
                iBottom = control->y() + control->height();
        });
        if (isFixedStrip(control))
            Skip([&] { iFixed += control->height(); });
    }
    Skip([&] { bar().setMaximum(maximumFor(bar().height(), iBottom)); });
    Skip([&] { bar().setVisible(iBottom > form->height()); });
    Skip([&] { bar().resize(bar().width(), form->height() - iFixed); });
    Skip([&] { bar().move(bar().x(), 0); });
    Skip([&] { bar().move(form->width() - bar().width(), bar().y()); });
    Skip([&] { bar().setValue(0); });
}

// The same across: the running right edge, the bar along the foot of the form
// above the fixed strip.
void cScrollBar::layoutHoriz(QWidget* form)
{
    int iRight = 0;
    int iFixed = 0;
    for (QWidget* control : FormControls(form)) {
        Skip([&] {
            if (control->x() > iRight)
                iRight = control->x() + control->width();
        });
        if (isFixedStrip(control))
            Skip([&] { iFixed += control->height(); });
    }
    Skip([&] { barH().setMaximum(maximumFor(barH().width(), iRight)); });
    Skip([&] { barH().setVisible(iRight > form->width()); });
    Skip([&] { barH().resize(form->width(), barH().height()); });
    Skip([&] { barH().move(0, form->height() - iFixed - barH().height()); });
    Skip([&] { barH().setValue(0); });
}

void cScrollBar::ScrollBar_Change() { moveVert(); }
void cScrollBar::ScrollBar_Scroll() { moveVert(); }
void cScrollBar::ScrollBarH_Change() { moveHoriz(); }
void cScrollBar::ScrollBarH_Scroll() { moveHoriz(); }

// The bar's value is its slider position: a move made by the person has set it
// by the time the events come.
void cScrollBar::moveVert()
{
    int delta = 0;
    Skip([&] { delta = iLastValue - bar().sliderPosition(); });
    QList<QWidget*> controls;
    Skip([&] { controls = FormControls(bar().parentWidget()); });
    for (QWidget* control : controls)
        if (!isExempt(control, true))
            Skip([&] { control->move(control->x(), control->y() + delta); });
    Skip([&] { iLastValue = bar().sliderPosition(); });
}

void cScrollBar::moveHoriz()
{
    int delta = 0;
    Skip([&] { delta = iLastValue - barH().sliderPosition(); });
    QList<QWidget*> controls;
    Skip([&] { controls = FormControls(barH().parentWidget()); });
    for (QWidget* control : controls)
        if (!isExempt(control, false))
            Skip([&] { control->move(control->x() + delta, control->y()); });
    Skip([&] { iLastValue = barH().sliderPosition(); });
}
