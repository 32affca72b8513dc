// The scroll bar that a form adds to itself and that moves the form's controls
// by hand: on a form with known controls, and in the Arduino I/O dialog.
#include <QtTest>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QStatusBar>
#include "devices/FormArduinoIO.h"
#include "devices/ModuleScrollBar.h"
#include "devices/cScrollBar.h"
#include "model/CArduinoData.h"
#include "model/CMainConfig.h"
#include "model/ModuleGlobals.h"
#include "support/Controls.h"
#include "support/DialogDriver.h"

namespace {

// A form that lays out its scroll bar on every resize, as the dialogs do.
class ScrollingForm : public QDialog {
public:
    explicit ScrollingForm(bool horizontal = false) : horizontal(horizontal) { resize(300, 200); }
    cScrollBar scroll;
    bool horizontal;

    template <typename W>
    W* add(const QString& name, QRect geometry, QWidget* container = nullptr)
    {
        auto* w = new W(container ? container : this);
        w->setObjectName(name);
        w->setGeometry(geometry);
        return w;
    }
    QGroupBox* frame(const QString& name, const QString& caption, QRect geometry)
    {
        auto* f = add<QGroupBox>(name, geometry);
        f->setTitle(caption);
        return f;
    }
    QWidget* control(const QString& name) { return findChild<QWidget*>(name); }
    QScrollBar* bar() { return findChild<QScrollBar*>(horizontal ? QStringLiteral("ScrollBar2") : QStringLiteral("ScrollBar1")); }

protected:
    void resizeEvent(QResizeEvent* event) override
    {
        QDialog::resizeEvent(event);
        if (horizontal)
            scroll.DibujarScrollBarHoriz(this);
        else
            scroll.DibujarScrollBarVert(this);
    }
};

// The known form: the running bottom is that of D (320), the fixed strip 40 high.
void buildRows(ScrollingForm& f)
{
    f.add<QLabel>("A", {10, 10, 100, 20});
    f.add<QLineEdit>("B", {10, 150, 100, 20});
    f.add<QLabel>("C", {10, 60, 100, 20});            // above the bottom reached so far: not counted
    auto* ok = f.frame("FrameOKCancel", "FrameOK", {0, 160, 300, 40});
    f.add<QPushButton>("CommandOK", {10, 5, 80, 30}, ok);
    f.add<QLabel>("D", {10, 300, 100, 20});
    f.add<QLabel>("E", {10, 250, 100, 100});          // ends lower than D, but starts above D's bottom
    auto* box = f.frame("Box", "Box", {150, 40, 120, 80});
    f.add<QLineEdit>("Inner", {5, 20, 100, 20}, box);
    auto* plain = f.frame("Plain", "", {150, 130, 120, 40});
    f.add<QLabel>("PlainInner", {5, 5, 50, 20}, plain);
}

QList<QPoint> positions(ScrollingForm& f, const QStringList& names)
{
    QList<QPoint> out;
    for (const QString& n : names)
        out << f.control(n)->pos();
    return out;
}

const QStringList kAll = {"A", "B", "C", "FrameOKCancel", "CommandOK", "D", "E", "Box", "Inner", "Plain", "PlainInner"};

// Positions of kAll after a move of `dy` down (negative: up).
QList<QPoint> movedBy(int dy)
{
    return {{10, 10 + dy}, {10, 150 + dy}, {10, 60 + dy}, {0, 160}, {10, 5}, {10, 300 + dy}, {10, 250 + dy},
            {150, 40 + dy}, {5, 20}, {150, 130 + dy}, {5, 5 + dy}};
}

int countNamed(QWidget* form, const QString& name)
{
    int n = 0;
    for (QWidget* w : form->findChildren<QWidget*>())
        n += w->objectName() == name;
    return n;
}

} // namespace

class TestScrollBar : public QObject {
    Q_OBJECT
private slots:
    void init()
    {
        FormArduinoIO::cScroll.m_bCreated = false;
        InitArduinoData();
        gDirty = false;
    }

    void typeNamesOfTheControls()
    {
        QWidget form;
        QScrollBar v(Qt::Vertical, &form), h(Qt::Horizontal, &form);
        QStatusBar status(&form);
        QGroupBox frame(&form);
        QLabel label(&form);
        QLineEdit edit(&form);
        QComboBox combo(&form);
        QPushButton button(&form);
        QCheckBox check(&form);
        QRadioButton option(&form);
        QCOMPARE(TypeName(&v), QStringLiteral("VScrollBar"));
        QCOMPARE(TypeName(&h), QStringLiteral("HScrollBar"));
        QCOMPARE(TypeName(&status), QStringLiteral("StatusBar"));
        QCOMPARE(TypeName(&frame), QStringLiteral("Frame"));
        QCOMPARE(TypeName(&label), QStringLiteral("Label"));
        QCOMPARE(TypeName(&edit), QStringLiteral("TextBox"));
        QCOMPARE(TypeName(&combo), QStringLiteral("ComboBox"));
        QCOMPARE(TypeName(&button), QStringLiteral("CommandButton"));
        QCOMPARE(TypeName(&check), QStringLiteral("CheckBox"));
        QCOMPARE(TypeName(&option), QStringLiteral("OptionButton"));
    }

    void controlsComeInTheOrderTheyWereAddedEachFrameFollowedByItsContents()
    {
        ScrollingForm f;
        buildRows(f);
        QStringList names;
        for (QWidget* w : FormControls(&f))
            names << w->objectName();
        QCOMPARE(names, kAll);
        auto* combo = f.add<QComboBox>("Combo", {0, 0, 50, 20});
        combo->setEditable(true);   // its own line edit is part of it, not a control of the form
        QCOMPARE(FormControls(&f).size(), kAll.size() + 1);
    }

    void bringingAFrameToTheFrontKeepsTheOrderOfTheControls()
    {
        QWidget form;
        KeepControlOrder(&form);
        named(new QLabel(&form), QStringLiteral("A"));
        auto* frame = named(new QGroupBox(QStringLiteral("FrameOK"), &form), QStringLiteral("FrameOKCancel"));
        named(new QPushButton(frame), QStringLiteral("CommandOK"));
        named(new QLabel(&form), QStringLiteral("B"));
        frame->raise();
        QStringList names;
        for (QWidget* w : FormControls(&form))
            names << w->objectName();
        QCOMPARE(names, (QStringList{"A", "FrameOKCancel", "CommandOK", "B"}));
        delete form.findChild<QLabel*>(QStringLiteral("A"));
        QCOMPARE(FormControls(&form).size(), 3);
    }

    void firstLayoutCreatesTheBarWithItsMaximumPlaceAndSteps()
    {
        ScrollingForm f;
        buildRows(f);
        QVERIFY(!f.bar());
        f.show();
        QScrollBar* bar = f.bar();
        QVERIFY(bar);
        QCOMPARE(bar->parentWidget(), &f);
        QCOMPARE(bar->orientation(), Qt::Vertical);
        QVERIFY(f.scroll.m_bCreated);
        QCOMPARE(f.scroll.ScrollBar.data(), bar);
        QCOMPARE(f.scroll.iLastValue, 0);
        // Running bottom 320; bar height 200 - 40; maximum 320 - 160 + 50.
        QCOMPARE(bar->maximum(), 210);
        QVERIFY(bar->isVisible());
        QCOMPARE(bar->geometry(), QRect(300 - bar->width(), 0, bar->sizeHint().width(), 160));
        QCOMPARE(bar->value(), 0);
        QCOMPARE(bar->singleStep(), 50);
        QCOMPARE(bar->pageStep(), 100);
        QCOMPARE(positions(f, kAll), movedBy(0));
    }

    void theBottomIsARunningValueNotTheGreatestBottom()
    {
        ScrollingForm f;
        f.add<QLabel>("First", {0, 100, 50, 200});   // bottom 300
        f.add<QLabel>("Second", {0, 250, 50, 20});   // top 250 is not below 300: passed over
        f.add<QLabel>("Third", {0, 310, 50, 10});    // top 310 below 300: the bottom becomes 320
        f.add<QLabel>("Fourth", {0, 200, 50, 400});  // ends at 600, but starts above 320
        f.show();
        // No fixed strip: bar height 200; maximum 320 - 200 + 50.
        QCOMPARE(f.bar()->maximum(), 170);
        QCOMPARE(f.bar()->height(), 200);
    }

    void aFormWhoseRowsAllFitHasItsBarHidden()
    {
        ScrollingForm f;
        f.add<QLabel>("A", {10, 10, 100, 20});
        f.add<QLabel>("B", {10, 170, 100, 30});   // ends exactly at the foot
        f.show();
        QScrollBar* bar = f.bar();
        QVERIFY(bar);
        QVERIFY(f.scroll.m_bCreated);
        QVERIFY(bar->isHidden());
        // A bar longer than the rows: its height minus the bottom, plus 50.
        QCOMPARE(bar->maximum(), 200 - 200 + 50);
    }

    void aStatusBarCountsAsTheFixedStrip()
    {
        ScrollingForm f;
        f.add<QLabel>("A", {10, 10, 100, 400});
        f.add<QStatusBar>("Status", {0, 178, 300, 22});
        f.show();
        QCOMPARE(f.bar()->height(), 200 - 22);
    }

    void aClickOnTheArrowMovesEveryControlButTheExemptOnes()
    {
        ScrollingForm f;
        buildRows(f);
        f.show();
        QScrollBar* bar = f.bar();
        const QRect before = bar->geometry();
        // The arrow at the bottom end of the bar.
        QTest::mouseClick(bar, Qt::LeftButton, {}, QPoint(bar->width() / 2, bar->height() - 3));
        QCOMPARE(bar->value(), 50);
        QCOMPARE(positions(f, kAll), movedBy(-50));
        QCOMPARE(bar->geometry(), before);
        QCOMPARE(f.scroll.iLastValue, 50);
        bar->triggerAction(QAbstractSlider::SliderPageStepAdd);
        QCOMPARE(positions(f, kAll), movedBy(-150));
        bar->triggerAction(QAbstractSlider::SliderSingleStepSub);
        QCOMPARE(positions(f, kAll), movedBy(-100));
        QCOMPARE(f.scroll.iLastValue, 100);
    }

    void draggingTheThumbMovesTheControlsAsItGoes()
    {
        ScrollingForm f;
        buildRows(f);
        f.show();
        QScrollBar* bar = f.bar();
        bar->setSliderDown(true);
        bar->setSliderPosition(30);
        QCOMPARE(positions(f, kAll), movedBy(-30));
        bar->setSliderPosition(210);
        QCOMPARE(positions(f, kAll), movedBy(-210));
        bar->setSliderDown(false);
        QCOMPARE(bar->value(), 210);
        QCOMPARE(f.scroll.iLastValue, 210);
    }

    void aValueSetByCodeMovesNothing()
    {
        ScrollingForm f;
        buildRows(f);
        f.show();
        f.bar()->setValue(120);
        QCOMPARE(positions(f, kAll), movedBy(0));
        QCOMPARE(f.scroll.iLastValue, 0);
    }

    void afterAResizePartOfTheWayDownTheValueIsZeroAndTheNextMoveStartsFromTheLastPosition()
    {
        ScrollingForm f;
        buildRows(f);
        f.show();
        QScrollBar* bar = f.bar();
        bar->triggerAction(QAbstractSlider::SliderPageStepAdd);
        bar->triggerAction(QAbstractSlider::SliderSingleStepAdd);
        QCOMPARE(positions(f, kAll), movedBy(-150));
        f.resize(300, 190);
        QCOMPARE(bar->value(), 0);
        QCOMPARE(positions(f, kAll), movedBy(-150));   // the controls stay where they were
        QCOMPARE(f.scroll.iLastValue, 150);
        // The running bottom is now that of the frame (200); the maximum comes from
        // the height the bar had before this layout: 200 - 160 + 50.
        QCOMPARE(bar->maximum(), 90);
        QCOMPARE(bar->geometry(), QRect(300 - bar->width(), 0, bar->width(), 150));
        QVERIFY(bar->isVisible());
        // From 150 to 50: everything comes down by 100.
        bar->triggerAction(QAbstractSlider::SliderSingleStepAdd);
        QCOMPARE(bar->value(), 50);
        QCOMPARE(positions(f, kAll), movedBy(-50));
        QCOMPARE(f.scroll.iLastValue, 50);
    }

    void aLayoutWithTheBarAlreadyThereCreatesNoSecondBar()
    {
        ScrollingForm f;
        buildRows(f);
        f.show();
        QScrollBar* bar = f.bar();
        f.resize(320, 220);
        f.scroll.DibujarScrollBarVert(&f);
        QCOMPARE(countNamed(&f, QStringLiteral("ScrollBar1")), 1);
        QCOMPARE(f.bar(), bar);
        QCOMPARE(bar->geometry(), QRect(320 - bar->width(), 0, bar->width(), 180));
    }

    void aResetFlagMakesTheNextLayoutCreateAnotherBar()
    {
        ScrollingForm f;
        buildRows(f);
        f.show();
        f.scroll.m_bCreated = false;
        f.scroll.DibujarScrollBarVert(&f);
        QCOMPARE(countNamed(&f, QStringLiteral("ScrollBar1")), 2);
    }

    void theHorizontalBarStandsAlongTheFootAboveTheFixedStrip()
    {
        ScrollingForm f(true);
        f.add<QLabel>("A", {10, 10, 100, 20});
        auto* head = f.frame("Frame1", "FrameHead", {0, 0, 200, 40});
        f.add<QLineEdit>("TextQDMPort", {100, 10, 60, 20}, head);
        f.add<QLabel>("B", {250, 50, 100, 20});   // right edge 350
        f.add<QLabel>("C", {120, 80, 400, 20});   // ends at 520, but starts left of 350
        auto* ok = f.frame("FrameOKCancel", "FrameOK", {0, 160, 300, 40});
        f.add<QPushButton>("CommandOK", {10, 5, 80, 30}, ok);
        f.show();
        QScrollBar* bar = f.bar();
        QVERIFY(bar);
        QCOMPARE(bar->orientation(), Qt::Horizontal);
        QCOMPARE(bar->maximum(), 350 - 300 + 50);
        QVERIFY(bar->isVisible());
        const int thickness = bar->sizeHint().height();
        QCOMPARE(bar->geometry(), QRect(0, 200 - 40 - thickness, 300, thickness));
        bar->triggerAction(QAbstractSlider::SliderSingleStepAdd);
        QCOMPARE(f.control("A")->pos(), QPoint(-40, 10));
        QCOMPARE(f.control("Frame1")->pos(), QPoint(-50, 0));      // the head moves sideways
        QCOMPARE(f.control("TextQDMPort")->pos(), QPoint(100, 10)); // inside its frame
        QCOMPARE(f.control("B")->pos(), QPoint(200, 50));
        QCOMPARE(f.control("FrameOKCancel")->pos(), QPoint(0, 160));
        QCOMPARE(f.control("CommandOK")->pos(), QPoint(10, 5));
        QCOMPARE(bar->pos(), QPoint(0, 200 - 40 - thickness));
    }

    void theHeadStaysOnAVerticalMove()
    {
        ScrollingForm f;
        auto* head = f.frame("Frame1", "FrameHead", {0, 0, 300, 40});
        f.add<QLineEdit>("TextQDMPort", {100, 10, 60, 20}, head);
        f.add<QLabel>("Row", {10, 400, 100, 20});
        f.show();
        f.bar()->triggerAction(QAbstractSlider::SliderSingleStepAdd);
        QCOMPARE(f.control("Frame1")->pos(), QPoint(0, 0));
        QCOMPARE(f.control("TextQDMPort")->pos(), QPoint(100, 10));
        QCOMPARE(f.control("Row")->pos(), QPoint(10, 350));
    }

    void aVerticalMovePassesOverTheOtherBar()
    {
        ScrollingForm f;
        f.add<QLabel>("Row", {10, 400, 100, 20});
        auto* other = f.add<QScrollBar>("ScrollBar2", {0, 150, 280, 16});
        other->setOrientation(Qt::Horizontal);
        f.show();
        f.bar()->triggerAction(QAbstractSlider::SliderSingleStepAdd);
        QCOMPARE(other->pos(), QPoint(0, 150));
        QCOMPARE(f.control("Row")->pos(), QPoint(10, 350));
    }

    void aFrameOfFixedMeaningHidesItsCaption()
    {
        auto uniform = [](bool fixedMeaning) {
            QWidget form;
            form.resize(220, 60);
            auto* frame = new QGroupBox(QStringLiteral("FrameOK"), &form);
            frame->setGeometry(10, 10, 200, 40);
            if (fixedMeaning)
                DrawWithoutCaption(frame);
            form.show();
            const QImage image = frame->grab().toImage();
            const QRgb background = image.pixel(image.width() - 1, image.height() / 2 + 5);
            for (int y = 0; y < image.height(); ++y)
                for (int x = 0; x < image.width(); ++x)
                    if (image.pixel(x, y) != background)
                        return false;
            return true;
        };
        QVERIFY(!uniform(false));   // an ordinary frame shows its caption and border
        QVERIFY(uniform(true));
    }

    // In the Arduino I/O dialog, the form that scrolls in the program.

    void aBoardWhoseRowsAllFitHasItsBarHidden()
    {
        FormArduinoIO io;
        io.iArduino = 0;
        io.iNumAnalog = 2;
        io.iNumDigital = 3;
        io.show();
        auto* bar = io.findChild<QScrollBar*>(QStringLiteral("ScrollBar1"));
        QVERIFY(bar);
        QVERIFY(bar->isHidden());
        QVERIFY(FormArduinoIO::cScroll.m_bCreated);
        io.CommandCancel->click();
    }

    void theStripOfOKAndCancelCountsBeforeTheRowsMadeAtLoad()
    {
        // The strip is a control of the form before the rows: once the running
        // bottom has reached the foot of the form, the ninth digital row, which
        // starts above it, no longer counts, and the bar stays hidden.
        FormArduinoIO io;
        io.iNumAnalog = 0;
        io.iNumDigital = 9;
        io.show();
        auto* row = io.findChild<QLabel*>(QStringLiteral("DigitalIO8"));
        QVERIFY(row->y() < io.height() && row->y() + row->height() > io.height());
        auto* bar = io.findChild<QScrollBar*>(QStringLiteral("ScrollBar1"));
        QVERIFY(bar);
        QVERIFY(bar->isHidden());
        QCOMPARE(bar->maximum(), io.height() - bar->height() + 50);   // from the foot of the strip
        io.CommandCancel->click();
    }

    void afterAResizeOfTheDialogScrolledPartOfTheWayTheNextMoveStartsFromTheLastPosition()
    {
        FormArduinoIO io;
        io.iNumAnalog = 2;
        io.iNumDigital = 10;
        io.show();
        auto* bar = io.findChild<QScrollBar*>(QStringLiteral("ScrollBar1"));
        QVERIFY(bar && bar->isVisible());
        auto* row = io.findChild<QLabel*>(QStringLiteral("DigitalIO9"));
        const int top = row->y();
        bar->triggerAction(QAbstractSlider::SliderSingleStepAdd);
        bar->triggerAction(QAbstractSlider::SliderSingleStepAdd);
        const int reached = bar->value();
        QVERIFY(reached > 50);
        QCOMPARE(row->y(), top - reached);
        io.resize(io.width(), io.height() + 10);
        QCOMPARE(bar->value(), 0);
        QCOMPARE(row->y(), top - reached);
        QCOMPARE(FormArduinoIO::cScroll.iLastValue, reached);
        bar->triggerAction(QAbstractSlider::SliderSingleStepAdd);
        QCOMPARE(row->y(), top - reached + (reached - 50));
        io.CommandCancel->click();
    }

    void aSecondOpeningCreatesANewBarOnlyIfTheFirstUnloadResetTheFlag()
    {
        auto open = [](const std::function<void(FormArduinoIO&)>& close) {
            FormArduinoIO io;
            io.iNumAnalog = 2;
            io.iNumDigital = 10;
            io.show();
            const int bars = countNamed(&io, QStringLiteral("ScrollBar1"));
            close(io);
            return bars;
        };
        // Cancel marks the bar as gone: the next opening makes a new one.
        QCOMPARE(open([](FormArduinoIO& io) { DialogDriver::click(&io, QStringLiteral("CommandCancel")); }), 1);
        QVERIFY(!FormArduinoIO::cScroll.m_bCreated);
        // Escape closes the window without the Cancel handler: the flag stays set...
        QCOMPARE(open([](FormArduinoIO& io) { QTest::keyClick(&io, Qt::Key_Escape); }), 1);
        QVERIFY(FormArduinoIO::cScroll.m_bCreated);
        // ...so the next opening has no bar at all.
        QCOMPARE(open([](FormArduinoIO& io) { DialogDriver::click(&io, QStringLiteral("CommandOK")); }), 0);
        QVERIFY(!FormArduinoIO::cScroll.m_bCreated);
        QCOMPARE(open([](FormArduinoIO& io) { DialogDriver::click(&io, QStringLiteral("CommandCancel")); }), 1);
    }
};

QTEST_MAIN(TestScrollBar)
#include "test_scrollbar.moc"
