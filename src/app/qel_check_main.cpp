// qel-check: checks a saved performance before it goes to the show machine.
// Opens FILE.qel with the program's readers, runs the check of the performance
// and prints one line per finding: severity | place | sentence.
// Exit status: 0 nothing found, 1 findings, 2 the performance could not be opened.
#include <cstdio>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include "check/ModuleCheck.h"
#include "files/ModuleArduinoData.h"
#include "files/ModuleSaveOpen.h"
#include "model/CArduinoData.h"
#include "model/CExoData.h"
#include "model/CMainConfig.h"
#include "model/ModuleGlobals.h"
#include "rules/ModuleGlobalEvents.h"
#include "support/ModuleGUI.h"
#include "support/Platform.h"

namespace {

void print(FILE* stream, const QString& text)
{
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, static_cast<size_t>(bytes.size()), stream);
    std::fputc('\n', stream);
}

} // namespace

int main(int argc, char** argv)
{
    ConfigureMemoryAllocator();
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("qel-check"));
    QCoreApplication::setOrganizationName(QStringLiteral("QEL"));
    const QStringList args = QCoreApplication::arguments();
    if (args.size() != 2 || args[1].startsWith(u'-')) {
        print(stderr, QStringLiteral("usage: qel-check FILE.qel\n"
                                     "Checks a performance before the show: prints one line per finding "
                                     "(severity | place | what will happen) and exits with 0 when nothing is found, "
                                     "1 when something is, 2 when the performance cannot be opened."));
        return 2;
    }
    const QString path = QFileInfo(args[1]).absoluteFilePath();
    if (!QFileInfo(path).isFile()) {
        print(stderr, QStringLiteral("qel-check: %1: no such file").arg(args[1]));
        return 2;
    }

    // The tables that start-up fills before any performance is opened.
    InitExoSensorLabels();
    InitExoTypeNames();
    InitExoData();
    InitArduinoData();
    ClearGlobalEvents();

    DeriveConfigPaths(QDir::toNativeSeparators(path));
    MessageCapture messages;
    OpenConfiguration(gConfigFilePath);
    if (!messages.texts.isEmpty()) {
        for (const QString& text : messages.texts)
            print(stderr, QStringLiteral("qel-check: %1: %2").arg(args[1], text.simplified()));
        return 2;
    }
    const std::vector<CFinding> findings = CheckPerformance();
    for (const CFinding& f : findings)
        print(stdout, FindingLine(f));
    return findings.empty() ? 0 : 1;
}
