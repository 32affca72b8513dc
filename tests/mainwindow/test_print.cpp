// Printing the rule list: an empty list gives one page with the scene heading;
// a list with a rule ends the program with the run-time's message.
#include <QtTest>
#include <QCheckBox>
#include <QPrinterInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <cstdio>
#include "mainwindow/FormInitial.h"
#include "model/CMainConfig.h"
#include "model/CScene.h"
#include "model/ModuleGlobals.h"
#include "rules/CEvent.h"
#include "rules/ModuleRuleDisplay.h"
#include "support/DialogDriver.h"
#include "support/Printer.h"
#include "mainwindow/MainWindowSession.h"

namespace {

const char* const kChildMode = "--print-a-rule";

std::shared_ptr<CEvent> rule(qint16 sourceType, qint16 targetType, const QString& remarks)
{
    auto r = std::make_shared<CEvent>();
    r->m_iSourceType = sourceType;
    r->m_strRemarks = remarks;
    r->m_strEvent = QStringLiteral("WHEN QEL THEN QEL");
    r->m_MsgOut = std::make_shared<Collection<CAction>>();
    auto a = std::make_shared<CAction>();
    a->m_iTargetType = targetType;
    r->m_MsgOut->Add(a);
    return r;
}

void selectFirstScene(FormInitial& form)
{
    form.CommandConn_Click();
    QTreeWidget* list = form.ListMain2;
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->topLevelItem(0)).center());
}

QString run(const QString& program, const QStringList& arguments, int* exitCode = nullptr)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished(30000);
    if (exitCode)
        *exitCode = process.exitCode();
    return QString::fromLocal8Bit(process.readAllStandardOutput());
}

// The child: a main window whose first scene has one rule; Print is chosen from
// the menu. The message box's title, icon and text go to the standard output.
int printARule()
{
    MainWindowSession session;
    session.start();
    gScenes.Item(1)->PartList.Item(1)->AddAudioEvent(rule(9, 9, QStringLiteral("Opening")), 1);
    selectFirstScene(*session.form);
    DialogDriver driver;
    driver.next([](QWidget* w) {
        auto* box = qobject_cast<QMessageBox*>(w);
        std::printf("title: %s\nicon: %d\ntext: %s\n", qPrintable(w->windowTitle()), box ? int(box->icon()) : -1,
                    qPrintable(DialogDriver::text(w).replace(QStringLiteral("\n"), QStringLiteral(" | "))));
        std::fflush(stdout);
        DialogDriver::press(w, QMessageBox::Ok);
    });
    session.menu("Print")->trigger();
    // Only reached when printing did not end the program: close as a person would.
    std::printf("printing returned\n");
    std::fflush(stdout);
    session.form->close();
    return 0;
}

} // namespace

class TestPrint : public QObject {
    Q_OBJECT
private:
    MainWindowSession session;
    std::unique_ptr<FormInitial>& form = session.form;
    QTemporaryDir home;

    QString documents() { return home.filePath(QStringLiteral("Documents")); }

private slots:
    void initTestCase()
    {
        // The user's documents folder of this run: a fresh home.
        qputenv("HOME", QFile::encodeName(home.path()));
        qunsetenv("XDG_CONFIG_HOME");
        if (!QPrinterInfo::availablePrinterNames().isEmpty())
            QSKIP("this machine has a printer: pages would go to it");
        if (QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty())
            QSKIP("pdftotext (poppler-utils) is not installed");
        session.start();
    }
    void init()
    {
        gDirty = false;
        for (int i = 0; i <= 10; ++i) {
            gSourceFilter(i) = true;
            gTargetFilter(i) = true;
        }
        for (QCheckBox* b : form->CheckSource)
            b->setChecked(true);
        form->New_Click();
        QDir(documents()).removeRecursively();
    }
    void cleanupTestCase() { session.stop(); }

    void aListWithNoRuleGivesOnePageWithTheHeading_data()
    {
        QTest::addColumn<bool>("rulesHiddenByAFilter");
        QTest::newRow("subscene with no rules") << false;
        QTest::newRow("a filter that shows none") << true;
    }
    void aListWithNoRuleGivesOnePageWithTheHeading()
    {
        QFETCH(bool, rulesHiddenByAFilter);
        gMainConfig.m_strName = QStringLiteral("Spring Show");
        auto part = gScenes.Item(1)->PartList.Item(1);
        part->m_strName = QStringLiteral("Dawn");
        if (rulesHiddenByAFilter) {
            part->AddAudioEvent(rule(9, 9, QStringLiteral("one")), 1);
            part->AddAudioEvent(rule(9, 9, QStringLiteral("two")), 2);
        }
        selectFirstScene(*form);
        if (rulesHiddenByAFilter) {
            QCOMPARE(form->ListEvents->topLevelItemCount(), 3);
            QCheckBox* qel = form->CheckSource[1];
            QCOMPARE(qel->text(), QStringLiteral("QEL"));
            QTest::mouseClick(qel, Qt::LeftButton);
        }
        QCOMPARE(form->ListEvents->topLevelItemCount(), 1);
        DialogDriver driver(1500);
        session.menu("Print")->trigger();
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QVERIFY(driver.seen().isEmpty());   // nothing is asked

        const QString pdf = documents() + QStringLiteral("/Spring Show.pdf");
        QCOMPARE(Printer::PdfPathFor(QStringLiteral("Spring Show")), QDir::toNativeSeparators(pdf));
        QVERIFY(QFileInfo::exists(pdf));
        const QString text = run(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), pdf, QStringLiteral("-")});
        QCOMPARE(text.count(u'\f'), 1);   // one page
        // The text tool gives runs of blanks as one.
        QCOMPARE(text.simplified(), QStringLiteral("SCENE 1: SCENE 1 || PART 1: Dawn"));
        const QString fonts = run(QStringLiteral("pdffonts"), {pdf});
        QVERIFY2(fonts.contains(QStringLiteral("Bold")), qPrintable(fonts));   // the heading is emphasised
    }

    void aListWithARuleEndsTheProgramWithTheRunTimeMessage()
    {
        // A copy of this program in a folder of its own, so that an auto-save would land there.
        QTemporaryDir folder;
        const QString copy = folder.filePath(QStringLiteral("print_child"));
        QVERIFY(QFile::copy(QCoreApplication::applicationFilePath(), copy));
        QFile::setPermissions(copy, QFile::permissions(copy) | QFileDevice::ExeOwner);
        QProcess child;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        env.insert(QStringLiteral("HOME"), home.path());
        child.setProcessEnvironment(env);
        child.start(copy, {QString::fromLatin1(kChildMode)});
        QVERIFY(child.waitForFinished(60000));
        const QString out = QString::fromLocal8Bit(child.readAllStandardOutput());
        QCOMPARE(child.exitStatus(), QProcess::NormalExit);
        QVERIFY2(child.exitCode() != 0, qPrintable(out));
        QVERIFY2(out.contains(QStringLiteral("text: Run-time error '13': |  | Type mismatch")), qPrintable(out));
        QVERIFY2(out.contains(QStringLiteral("title: QEL Setup")), qPrintable(out));
        QVERIFY2(out.contains(QStringLiteral("icon: %1").arg(int(QMessageBox::Critical))), qPrintable(out));
        QVERIFY(!out.contains(QStringLiteral("printing returned")));
        QVERIFY(!QFileInfo::exists(folder.filePath(QStringLiteral("AutoSave"))));   // no closing step ran
        QVERIFY(!QFileInfo::exists(documents() + QStringLiteral("/QEL New.pdf")));   // no page came out
    }
};

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    if (argc > 1 && qstrcmp(argv[1], kChildMode) == 0)
        return printARule();
    TestPrint test;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&test, argc, argv);
}

#include "test_print.moc"
