// The display manager dialog: the grid made at load, the count of applications
// of each manager, copying a manager's configuration, OK and Cancel, scrolling
// both ways, and the main file written after it.
#include <QtTest>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTemporaryDir>
#include "devices/FormDisplayConfig.h"
#include "model/CMainConfig.h"
#include "model/ModuleGlobals.h"
#include "support/DialogDriver.h"
#include "support/TestData.h"
#include "mainwindow/MainWindowSession.h"

namespace {

template <typename T = QWidget>
T* control(QWidget* form, const QString& name)
{
    return DialogDriver::find<T>(form, name);
}

QString cell(const char* stem, int manager, int application)
{
    return QStringLiteral("%1%2_%3").arg(QString::fromLatin1(stem)).arg(manager).arg(application);
}

const char* const kRowStems[] = {"LabelVideoApp", "TextVideoApp", "LabelWindowName", "WindowName",
                                 "LabelVideoAppPath", "VideoAppPath", "VideoAppLaunch", "VideoAppLaunchLabel"};

// The display manager fields as a new performance has them.
void newPerformanceDisplays()
{
    gMainConfig.m_iQDMPort = 1111;
    for (int i = 0; i < 8; ++i) {
        const QString n = QString::number(i + 1);
        gMainConfig.m_iNAppPerQDM(i) = 2;
        gMainConfig.m_strDisplayManagerPath(i) = QStringLiteral("\\\\QDM") + n + QStringLiteral("machine\\path\\to\\the\\qdm\\executable\\file\\");
        for (int j = 0; j < 8; ++j) {
            const QString k = QString::number(j + 1);
            gMainConfig.m_strVideoAppLabel(i, j) = QStringLiteral("QDM ") + n + QStringLiteral(" | Video App Label ") + k;
            gMainConfig.m_strVideoAppWindow(i, j) = QStringLiteral("QDM ") + n + QStringLiteral(" | Video App Window ") + k;
            gMainConfig.m_strVideoAppPath(i, j) = QStringLiteral("c:\\myvideopath");
            gMainConfig.m_bVideoAppLaunch(i, j) = false;
        }
    }
}

// For each application of a manager: 1 when all the controls of its rows are
// shown, 0 when none is, -1 when some are.
QList<int> shownApplications(QWidget* form, int manager)
{
    QList<int> shown;
    for (int j = 0; j < 7; ++j) {
        int visible = 0;
        for (const char* stem : kRowStems)
            visible += control(form, cell(stem, manager, j))->isVisible();
        shown << (visible == 8 ? 1 : visible == 0 ? 0 : -1);
    }
    return shown;
}

int countNamed(QWidget* form, const QString& name)
{
    int n = 0;
    for (QWidget* w : form->findChildren<QWidget*>())
        n += w->objectName() == name;
    return n;
}

} // namespace

class TestDisplayConfig : public QObject {
    Q_OBJECT
private:
    MainWindowSession session;
    QTemporaryDir dir;

    void openWith(FormDisplayConfig& form, int managers)
    {
        form.iNumQDMs = static_cast<qint16>(managers);
        form.show();
    }

private slots:
    void init()
    {
        newPerformanceDisplays();
        FormDisplayConfig::cScrollH.m_bCreated = false;
        FormDisplayConfig::cScrollV.m_bCreated = false;
        gDirty = false;
        gMainConfig.m_bUpdate = false;
    }
    void cleanup() { session.stop(); }

    void theButtonOpensTheDialogWithAColumnForEachManager()
    {
        session.start();
        DialogDriver::pick(session.form.get(), QStringLiteral("ComboNScreens"), QStringLiteral("2"));
        DialogDriver driver;
        int columns = -1;
        driver.next([&](QWidget* w) {
            columns = countNamed(w, "TxtPath0") + countNamed(w, "TxtPath1") + countNamed(w, "TxtPath2");
            DialogDriver::click(w, QStringLiteral("CommandOK"));
        });
        DialogDriver::click(session.form.get(), QStringLiteral("CommandScreen"));
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QCOMPARE(driver.seen(), QStringList{QStringLiteral("QEL Display Manager Configuration")});
        QCOMPARE(columns, 2);
        QCOMPARE(gDirty, true);
        QCOMPARE(gMainConfig.m_bUpdate, false);   // the opener clears it again
    }

    void theGridIsMadeAtLoadWithAColumnForEachManager()
    {
        gMainConfig.m_iQDMPort = 1234;
        gMainConfig.m_iNAppPerQDM(1) = 3;
        gMainConfig.m_strVideoAppWindow(1, 2) = QStringLiteral("Projector");
        gMainConfig.m_bVideoAppLaunch(1, 1) = true;
        FormDisplayConfig form;
        openWith(form, 3);
        QCOMPARE(form.windowTitle(), QStringLiteral("QEL Display Manager Configuration"));
        QCOMPARE(form.Frame1->title(), QStringLiteral("FrameHead"));
        QCOMPARE(form.TextQDMPort->parentWidget(), form.Frame1);
        QCOMPARE(form.TextQDMPort->text(), QStringLiteral("1234"));
        QCOMPARE(control<QLabel>(&form, "LabelQDMPort")->text(), QStringLiteral("QDM Port:"));
        QCOMPARE(form.FrameOKCancel->title(), QStringLiteral("FrameOK"));
        QCOMPARE(form.CommandOK->parentWidget(), form.FrameOKCancel);

        QCOMPARE(control<QLabel>(&form, "LabelAnalog2")->text(), QStringLiteral("QEL Display Manager 3"));
        QCOMPARE(control<QLineEdit>(&form, "TxtPath1")->text(),
                 QStringLiteral("\\\\QDM2machine\\path\\to\\the\\qdm\\executable\\file\\"));
        QVERIFY(!form.findChild<QWidget*>(QStringLiteral("TxtPath3")));
        QCOMPARE(control<QLabel>(&form, "LabelVideoApp1_2")->text(), QStringLiteral("Video application 3 label"));
        QCOMPARE(control<QLineEdit>(&form, "TextVideoApp1_0")->text(), QStringLiteral("QDM 2 | Video App Label 1"));
        QCOMPARE(control<QLabel>(&form, "LabelWindowName1_2")->text(), QStringLiteral("App window 3 name"));
        QCOMPARE(control<QLineEdit>(&form, "WindowName1_2")->text(), QStringLiteral("Projector"));
        QCOMPARE(control<QLabel>(&form, "LabelVideoAppPath1_0")->text(), QStringLiteral("Application 1 path"));
        QCOMPARE(control<QLineEdit>(&form, "VideoAppPath1_0")->text(), QStringLiteral("c:\\myvideopath"));
        QVERIFY(control<QCheckBox>(&form, "VideoAppLaunch1_1")->isChecked());
        QVERIFY(!control<QCheckBox>(&form, "VideoAppLaunch1_0")->isChecked());
        QCOMPARE(control<QLabel>(&form, "VideoAppLaunchLabel1_0")->text(), QStringLiteral("Launch on startup"));
        QCOMPARE(shownApplications(&form, 0), (QList<int>{1, 1, 0, 0, 0, 0, 0}));
        QCOMPARE(shownApplications(&form, 1), (QList<int>{1, 1, 1, 0, 0, 0, 0}));

        // Manager i stands in column i.
        for (int i = 0; i < 3; ++i) {
            const int x = control(&form, QStringLiteral("LabelAnalog%1").arg(i))->x();
            if (i > 0)
                QVERIFY(x > control(&form, QStringLiteral("TxtPath%1").arg(i - 1))->geometry().right());
            QCOMPARE(control(&form, QStringLiteral("TxtPath%1").arg(i))->x(), x);
            QCOMPARE(control(&form, cell("TextVideoApp", i, 1))->x(), x);
            QVERIFY(control(&form, cell("TextVideoApp", i, 1))->y() > control(&form, cell("VideoAppLaunch", i, 0))->y());
        }
        for (int i = 0; i < 8; ++i) {
            auto* count = control<QComboBox>(&form, QStringLiteral("comboNumApps(%1)").arg(i));
            auto* copy = control<QPushButton>(&form, QStringLiteral("CommandCopyConfig(%1)").arg(i));
            QCOMPARE(count->isVisible(), i < 3);
            QCOMPARE(copy->isVisible(), i < 3);
            if (i < 3) {
                QCOMPARE(count->count(), 8);
                QCOMPARE(count->itemText(7), QStringLiteral("7"));
                QCOMPARE(copy->text(), QStringLiteral("Copy conf to others"));
                QVERIFY(copy->y() >= count->y() + count->height());
                QVERIFY(count->x() >= control(&form, QStringLiteral("TxtPath%1").arg(i))->x());
            }
        }
        QCOMPARE(control<QComboBox>(&form, "comboNumApps(1)")->currentText(), QStringLiteral("3"));
        form.CommandCancel->click();
    }

    void withOneManagerThereIsNothingToCopyTo()
    {
        FormDisplayConfig form;
        openWith(form, 1);
        QVERIFY(control(&form, "comboNumApps(0)")->isVisible());
        QVERIFY(control(&form, "CommandCopyConfig(0)")->isHidden());
        form.CommandCancel->click();
    }

    void pickingACountShowsThatManyApplications()
    {
        FormDisplayConfig form;
        openWith(form, 2);
        DialogDriver::pick(&form, QStringLiteral("comboNumApps(1)"), QStringLiteral("5"));
        QCOMPARE(shownApplications(&form, 1), (QList<int>{1, 1, 1, 1, 1, 0, 0}));
        QCOMPARE(control<QLabel>(&form, "LabelVideoApp1_4")->text(), QStringLiteral("Video application 5 label"));
        QCOMPARE(control<QLabel>(&form, "LabelVideoAppPath1_4")->text(), QStringLiteral("Application 5 path"));
        QCOMPARE(shownApplications(&form, 0), (QList<int>{1, 1, 0, 0, 0, 0, 0}));
        DialogDriver::pick(&form, QStringLiteral("comboNumApps(1)"), QStringLiteral("1"));
        QCOMPARE(shownApplications(&form, 1), (QList<int>{1, 0, 0, 0, 0, 0, 0}));
        form.CommandCancel->click();
    }

    void aCountOfZeroHidesAllApplicationsAndOKSetsAllTheirLaunchFlags()
    {
        gMainConfig.m_bVideoAppLaunch(1, 0) = false;
        FormDisplayConfig form;
        openWith(form, 2);
        DialogDriver::pick(&form, QStringLiteral("comboNumApps(1)"), QStringLiteral("0"));
        QCOMPARE(shownApplications(&form, 1), QList<int>(7, 0));
        DialogDriver::click(&form, QStringLiteral("CommandOK"));
        QCOMPARE(gMainConfig.m_iNAppPerQDM(1), qint16(0));
        for (int j = 0; j < 8; ++j)
            QVERIFY(gMainConfig.m_bVideoAppLaunch(1, j));
        // The other manager's applications in use keep their flags.
        QVERIFY(!gMainConfig.m_bVideoAppLaunch(0, 0));
        QVERIFY(!gMainConfig.m_bVideoAppLaunch(0, 1));
        QVERIFY(gMainConfig.m_bVideoAppLaunch(0, 2));
    }

    void copyAnsweredWithNoChangesNothing()
    {
        FormDisplayConfig form;
        openWith(form, 3);
        DialogDriver::pick(&form, QStringLiteral("comboNumApps(0)"), QStringLiteral("4"));
        DialogDriver::type(&form, QStringLiteral("TextVideoApp0_0"), QStringLiteral("Wall"));
        DialogDriver driver;
        QString text, title;
        bool yesNo = false;
        driver.next([&](QWidget* w) {
            auto* box = qobject_cast<QMessageBox*>(w);
            text = box->text();
            title = box->windowTitle();
            yesNo = box->standardButtons() == (QMessageBox::Yes | QMessageBox::No);
            DialogDriver::press(w, QMessageBox::No);
        });
        DialogDriver::click(&form, QStringLiteral("CommandCopyConfig(0)"));
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QCOMPARE(title, QStringLiteral("QDM Configuration"));
        QCOMPARE(text, QStringLiteral("The configuration of QDM 1 will be copied to the rest of the QDMs. Do you want to continue?"));
        QVERIFY(yesNo);
        for (int k = 1; k < 3; ++k) {
            QCOMPARE(control<QComboBox>(&form, QStringLiteral("comboNumApps(%1)").arg(k))->currentText(), QStringLiteral("2"));
            QCOMPARE(shownApplications(&form, k), (QList<int>{1, 1, 0, 0, 0, 0, 0}));
            QCOMPARE(control<QLineEdit>(&form, cell("TextVideoApp", k, 0))->text(), QStringLiteral("QDM %1 | Video App Label 1").arg(k + 1));
        }
        form.CommandCancel->click();
        QCOMPARE(gMainConfig.m_strVideoAppLabel(1, 0), QStringLiteral("QDM 2 | Video App Label 1"));
    }

    void copyAnsweredWithYesCopiesAllButThePathIntoTheControls()
    {
        FormDisplayConfig form;
        openWith(form, 3);
        DialogDriver::pick(&form, QStringLiteral("comboNumApps(1)"), QStringLiteral("3"));
        DialogDriver::type(&form, QStringLiteral("TxtPath1"), QStringLiteral("D:\\second"));
        DialogDriver::type(&form, QStringLiteral("TextVideoApp1_2"), QStringLiteral("Wall"));
        DialogDriver::type(&form, QStringLiteral("WindowName1_0"), QStringLiteral("Main"));
        DialogDriver::type(&form, QStringLiteral("VideoAppPath1_1"), QStringLiteral("C:\\player.exe"));
        DialogDriver::click(&form, QStringLiteral("VideoAppLaunch1_2"));
        DialogDriver driver;
        QString text;
        driver.next([&](QWidget* w) {
            text = DialogDriver::text(w);
            DialogDriver::press(w, QMessageBox::Yes);
        });
        DialogDriver::click(&form, QStringLiteral("CommandCopyConfig(1)"));
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QCOMPARE(text, QStringLiteral("The configuration of QDM 2 will be copied to the rest of the QDMs. Do you want to continue?"));
        for (int k : {0, 2}) {
            QCOMPARE(control<QComboBox>(&form, QStringLiteral("comboNumApps(%1)").arg(k))->currentText(), QStringLiteral("3"));
            QCOMPARE(shownApplications(&form, k), (QList<int>{1, 1, 1, 0, 0, 0, 0}));
            QCOMPARE(control<QLabel>(&form, cell("LabelVideoApp", k, 2))->text(), QStringLiteral("Video application 3 label"));
            for (int j = 0; j < 7; ++j) {
                for (const char* stem : {"TextVideoApp", "WindowName", "VideoAppPath"})
                    QCOMPARE(control<QLineEdit>(&form, cell(stem, k, j))->text(),
                             control<QLineEdit>(&form, cell(stem, 1, j))->text());
                QCOMPARE(control<QCheckBox>(&form, cell("VideoAppLaunch", k, j))->isChecked(), j == 2);
            }
        }
        QCOMPARE(control<QLineEdit>(&form, "TextVideoApp0_2")->text(), QStringLiteral("Wall"));
        QCOMPARE(control<QLineEdit>(&form, "TxtPath0")->text(), QStringLiteral("\\\\QDM1machine\\path\\to\\the\\qdm\\executable\\file\\"));
        QCOMPARE(control<QLineEdit>(&form, "TxtPath2")->text(), QStringLiteral("\\\\QDM3machine\\path\\to\\the\\qdm\\executable\\file\\"));
        // Nothing reaches the record before OK.
        QCOMPARE(gMainConfig.m_iNAppPerQDM(0), qint16(2));
        QCOMPARE(gMainConfig.m_strVideoAppLabel(0, 2), QStringLiteral("QDM 1 | Video App Label 3"));
        DialogDriver::click(&form, QStringLiteral("CommandOK"));
        QCOMPARE(gMainConfig.m_iNAppPerQDM(0), qint16(3));
        QCOMPARE(gMainConfig.m_strVideoAppLabel(2, 2), QStringLiteral("Wall"));
        QCOMPARE(gMainConfig.m_strVideoAppWindow(0, 0), QStringLiteral("Main"));
        QCOMPARE(gMainConfig.m_strVideoAppPath(2, 1), QStringLiteral("C:\\player.exe"));
        QVERIFY(gMainConfig.m_bVideoAppLaunch(0, 2));
        QVERIFY(!gMainConfig.m_bVideoAppLaunch(0, 1));
    }

    void okStoresThePathsWithAClosingBackslashAndMarksUnusedApplicationsForLaunch()
    {
        FormDisplayConfig form;
        openWith(form, 3);
        DialogDriver::type(&form, QStringLiteral("TxtPath0"), QStringLiteral("D:\\shows"));
        DialogDriver::type(&form, QStringLiteral("TxtPath1"), QString());
        DialogDriver::type(&form, QStringLiteral("TxtPath2"), QStringLiteral("E:\\qdm\\"));
        DialogDriver::type(&form, QStringLiteral("TextVideoApp0_1"), QStringLiteral("Left screen"));
        DialogDriver::click(&form, QStringLiteral("VideoAppLaunch0_0"));
        DialogDriver::type(&form, QStringLiteral("TextQDMPort"), QStringLiteral("2222"));
        DialogDriver::click(&form, QStringLiteral("CommandOK"));
        QVERIFY(!form.isVisible());
        QCOMPARE(gMainConfig.m_strDisplayManagerPath(0), QStringLiteral("D:\\shows\\"));
        QCOMPARE(gMainConfig.m_strDisplayManagerPath(1), QString());
        QCOMPARE(gMainConfig.m_strDisplayManagerPath(2), QStringLiteral("E:\\qdm\\"));
        QCOMPARE(gMainConfig.m_strVideoAppLabel(0, 1), QStringLiteral("Left screen"));
        QVERIFY(gMainConfig.m_bVideoAppLaunch(0, 0));
        QVERIFY(!gMainConfig.m_bVideoAppLaunch(0, 1));
        for (int j = 2; j < 8; ++j)
            QVERIFY(gMainConfig.m_bVideoAppLaunch(2, j));
        // A manager beyond the count is not touched.
        QVERIFY(!gMainConfig.m_bVideoAppLaunch(3, 5));
        QCOMPARE(gMainConfig.m_iQDMPort, qint16(2222));
        QCOMPARE(gDirty, true);
        QCOMPARE(gMainConfig.m_bUpdate, true);
        QCOMPARE(FormDisplayConfig::cScrollH.m_bCreated, false);
        QCOMPARE(FormDisplayConfig::cScrollV.m_bCreated, false);
    }

    void aPortThatIsNoNumberKeepsTheOldPortWithNoMessage()
    {
        FormDisplayConfig form;
        openWith(form, 1);
        DialogDriver::type(&form, QStringLiteral("TextQDMPort"), QStringLiteral("port"));
        DialogDriver driver;
        DialogDriver::click(&form, QStringLiteral("CommandOK"));
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QVERIFY(!form.isVisible());
        QCOMPARE(gMainConfig.m_iQDMPort, qint16(1111));
        QCOMPARE(gDirty, true);
    }

    void cancelClearsTheUnsavedChangesMark()
    {
        gDirty = true;
        gMainConfig.m_bUpdate = true;
        FormDisplayConfig form;
        openWith(form, 2);
        DialogDriver::type(&form, QStringLiteral("TxtPath0"), QStringLiteral("D:\\lost"));
        DialogDriver::pick(&form, QStringLiteral("comboNumApps(0)"), QStringLiteral("0"));
        DialogDriver::click(&form, QStringLiteral("CommandCancel"));
        QVERIFY(!form.isVisible());
        QCOMPARE(form.result(), int(QDialog::Rejected));
        QCOMPARE(gDirty, false);
        QCOMPARE(gMainConfig.m_bUpdate, false);
        QCOMPARE(gMainConfig.m_iNAppPerQDM(0), qint16(2));
        QVERIFY(gMainConfig.m_strDisplayManagerPath(0).startsWith(QStringLiteral("\\\\QDM1")));
        QCOMPARE(FormDisplayConfig::cScrollH.m_bCreated, false);
        QCOMPARE(FormDisplayConfig::cScrollV.m_bCreated, false);
    }

    void aResizeMovesTheFootStripToTheFootAndKeepsTheHead()
    {
        FormDisplayConfig form;
        openWith(form, 2);
        QCOMPARE(form.FrameOKCancel->y() + form.FrameOKCancel->height(), form.height());
        form.resize(form.width() + 40, form.height() + 60);
        QCOMPARE(form.FrameOKCancel->y() + form.FrameOKCancel->height(), form.height());
        QCOMPARE(form.FrameOKCancel->width(), form.width());
        QCOMPARE(form.Frame1->pos(), QPoint(0, 0));
        form.CommandCancel->click();
    }

    void eightManagersOfSevenApplicationsScrollBothWays()
    {
        for (int i = 0; i < 8; ++i)
            gMainConfig.m_iNAppPerQDM(i) = 7;
        FormDisplayConfig form;
        openWith(form, 8);
        auto* down = control<QScrollBar>(&form, "ScrollBar1");
        auto* across = control<QScrollBar>(&form, "ScrollBar2");
        QCOMPARE(down->orientation(), Qt::Vertical);
        QCOMPARE(across->orientation(), Qt::Horizontal);
        QVERIFY(down->isVisible());
        QVERIFY(across->isVisible());
        QCOMPARE(across->y() + across->height(), form.FrameOKCancel->y());
        QCOMPARE(down->height(), form.FrameOKCancel->y());

        auto* lastRow = control(&form, "VideoAppLaunchLabel0_6");
        const QPoint row = lastRow->pos();
        const QPoint head = form.Frame1->pos();
        const QPoint port = form.TextQDMPort->pos();
        const QPoint foot = form.FrameOKCancel->pos();
        const QPoint ok = form.CommandOK->pos();
        const QPoint count = control(&form, "comboNumApps(7)")->pos();

        down->triggerAction(QAbstractSlider::SliderToMaximum);
        const int dy = down->maximum();
        QCOMPARE(lastRow->pos(), row - QPoint(0, dy));
        QCOMPARE(control(&form, "comboNumApps(7)")->pos(), count - QPoint(0, dy));
        QCOMPARE(form.Frame1->pos(), head);
        QCOMPARE(form.TextQDMPort->pos(), port);
        QCOMPARE(form.FrameOKCancel->pos(), foot);
        QCOMPARE(form.CommandOK->pos(), ok);
        QCOMPARE(across->y() + across->height(), form.FrameOKCancel->y());
        // The last application's rows come into view above the strips.
        QVERIFY(lastRow->y() + lastRow->height() <= across->y());

        across->triggerAction(QAbstractSlider::SliderToMaximum);
        const int dx = across->maximum();
        QCOMPARE(lastRow->pos(), row - QPoint(dx, dy));
        QCOMPARE(form.Frame1->pos(), head - QPoint(dx, 0));   // the head moves sideways
        QCOMPARE(form.TextQDMPort->pos(), port);              // inside it
        QCOMPARE(form.FrameOKCancel->pos(), foot);
        QCOMPARE(down->x(), form.width() - down->width());
        // The last column comes into view left of the vertical bar.
        QVERIFY(control(&form, "TxtPath7")->geometry().right() < down->x());
        form.CommandCancel->click();
    }

    void openedTwiceInARowTheGridDoesNotPileUpAndTheBarsAreMadeAnew()
    {
        session.start();
        DialogDriver::pick(session.form.get(), QStringLiteral("ComboNScreens"), QStringLiteral("8"));
        for (int opening = 0; opening < 2; ++opening) {
            DialogDriver driver;
            int paths = -1, down = -1, across = -1;
            driver.next([&](QWidget* w) {
                paths = countNamed(w, "TxtPath0");
                down = countNamed(w, "ScrollBar1");
                across = countNamed(w, "ScrollBar2");
                DialogDriver::click(w, QStringLiteral("CommandCancel"));
            });
            DialogDriver::click(session.form.get(), QStringLiteral("CommandScreen"));
            QVERIFY2(driver.finished(), qPrintable(driver.error()));
            QCOMPARE(paths, 1);
            QCOMPARE(down, 1);
            QCOMPARE(across, 1);
        }
    }

    void okThenSaveAsWritesTheDisplayManagersByteForByte()
    {
        session.start();
        DialogDriver::pick(session.form.get(), QStringLiteral("ComboNScreens"), QStringLiteral("2"));
        DialogDriver driver;
        driver.next([](QWidget* w) {
            DialogDriver::type(w, QStringLiteral("TextQDMPort"), QStringLiteral("2222"));
            DialogDriver::type(w, QStringLiteral("TxtPath1"), QStringLiteral("D:\\shows"));
            DialogDriver::pick(w, QStringLiteral("comboNumApps(1)"), QStringLiteral("1"));
            DialogDriver::type(w, QStringLiteral("TextVideoApp1_0"), QStringLiteral("Screen"));
            DialogDriver::type(w, QStringLiteral("WindowName1_0"), QStringLiteral("Win"));
            DialogDriver::type(w, QStringLiteral("VideoAppPath1_0"), QStringLiteral("C:\\play.exe"));
            DialogDriver::click(w, QStringLiteral("VideoAppLaunch0_1"));
            DialogDriver::click(w, QStringLiteral("CommandOK"));
        });
        DialogDriver::click(session.form.get(), QStringLiteral("CommandScreen"));
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        const QString path = native(dir.filePath(QStringLiteral("Screens.qel")));
        session.saveAs(path);
        const QByteArray main = ReadBytes(path);
        QVERIFY(main.contains("\r\n\r\n; Number of QEL Display Manager:\r\n 2 \r\n\r\n"));
        QVERIFY(main.contains("\r\n\r\n; QEL Display Manager Port:\r\n 2222 \r\n\r\n"));
        QVERIFY(main.endsWith("; Flash Player Folder:\r\n"
                              "\r\n"
                              "; QDM Remote Paths:\r\n"
                              "\\\\QDM1machine\\path\\to\\the\\qdm\\executable\\file\\\r\n"
                              "D:\\shows\\\r\n"
                              "\r\n"
                              "; QDM Number of video apps:\r\n"
                              " 2 \r\n"
                              " 1 \r\n"
                              "\r\n"
                              "; QDM Video app labels:\r\n"
                              "QDM 1 | Video App Label 1\r\n"
                              "QDM 1 | Video App Label 2\r\n"
                              "Screen\r\n"
                              "\r\n"
                              "; QDM Video app window names:\r\n"
                              "QDM 1 | Video App Window 1\r\n"
                              "QDM 1 | Video App Window 2\r\n"
                              "Win\r\n"
                              "\r\n"
                              "; QDM Video app paths:\r\n"
                              "c:\\myvideopath\r\n"
                              "c:\\myvideopath\r\n"
                              "C:\\play.exe\r\n"
                              "\r\n"
                              "; QDM Video app launch on startup:\r\n"
                              " 0 \r\n"
                              " 1 \r\n"
                              " 0 \r\n"
                              "\r\n"
                              "; Value Events per Second:\r\n"
                              " 16 \r\n"
                              "\r\n\r\n\r\n"));
    }
};

QTEST_MAIN(TestDisplayConfig)
#include "test_displayconfig.moc"
