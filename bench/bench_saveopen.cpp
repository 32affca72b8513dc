// Times the whole save and open of a performance (SaveConfiguration and
// OpenConfiguration) for performances of growing size built in memory, and
// compares them with a plain buffered write and read of the same bytes.
//
// Prints, per size: the megabytes of all files the save writes, the median
// save and open times, their throughput, and how many times slower each is
// than the plain copy; then whether the time grows linearly with the rules.
// At the largest size it also times each writer and reader of the sequence
// on its own, to show where the time goes. Last, the check of the performance
// (CheckPerformance) at each size, against its limit of 200 ms at 10,000 rules.
#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <ctime>
#include <functional>
#include <memory>
#include <vector>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QMessageBox>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTimer>
#include "support/Platform.h"
#include "check/ModuleCheck.h"
#include "files/ModuleArduinoData.h"
#include "files/ModuleBotEvents.h"
#include "files/ModuleConfig.h"
#include "files/ModuleExoData.h"
#include "files/ModuleSaveOpen.h"
#include "files/ModuleScenes.h"
#include "files/ModuleVideoCapture.h"
#include "model/CArduinoData.h"
#include "model/CExoData.h"
#include "model/CMainConfig.h"
#include "model/CScene.h"
#include "model/ModuleGlobals.h"
#include "rules/CAction.h"
#include "rules/CEvent.h"
#include "rules/ModuleEvents.h"
#include "rules/ModuleGlobalEvents.h"
#include "support/TextFile.h"

namespace {

constexpr int kScenes = 200;
constexpr int kPartsPerScene = 2;
constexpr int kRuns = 9;
constexpr quint32 kSeed = 20240611;
const std::vector<int> kSizes = {1000, 2500, 5000, 10000, 20000};

using Clock = std::chrono::steady_clock;

double timeMs(const std::function<void()>& work)
{
    const auto start = Clock::now();
    work();
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

// Milliseconds of processor time this thread spent in `work`: what a busy
// machine adds to the wall-clock time (waiting for a core) is not in it.
double cpuMs(const std::function<void()>& work)
{
    timespec a{}, b{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &a);
    work();
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &b);
    return (b.tv_sec - a.tv_sec) * 1000.0 + (b.tv_nsec - a.tv_nsec) / 1e6;
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    const size_t n = values.size();
    return n % 2 ? values[n / 2] : (values[n / 2 - 1] + values[n / 2]) / 2.0;
}

class Generator {
public:
    explicit Generator(quint32 seed) : m_rng(seed) {}

    int Int(int lo, int hi) { return lo + static_cast<int>(m_rng.bounded(static_cast<quint32>(hi - lo + 1))); }

    // A non-empty text with no field separator, no line end and no blank at either end.
    QString Word(int minLength, int maxLength)
    {
        static const QString alphabet =
            QStringLiteral("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789 .-_()\u00e9\u00f1");
        const int length = Int(minLength, maxLength);
        QString text;
        text.reserve(length);
        for (int i = 0; i < length; ++i)
            text += alphabet[Int(0, static_cast<int>(alphabet.size()) - 1)];
        if (text.front() == u' ')
            text.front() = u'x';
        if (text.back() == u' ')
            text.back() = u'x';
        return text;
    }

    std::shared_ptr<CAction> MakeAction()
    {
        auto action = std::make_shared<CAction>();
        action->m_iTargetType = 6;   // MIDI
        action->m_iTarget = static_cast<qint16>(Int(0, 7));
        action->m_iChannel = static_cast<qint16>(Int(0, 15));
        action->m_iCommand = 0;      // Note On
        action->m_strVal1 = QString::number(Int(0, 127));
        action->m_strVal2 = QString::number(Int(0, 127));
        action->m_strMin = QString::number(Int(0, 63));
        action->m_strMax = QString::number(Int(64, 127));
        action->m_iAction = static_cast<qint16>(Int(0, 2));
        action->m_strMIDIFile = Word(4, 16) + QStringLiteral(".mid");
        action->m_strMessage = Word(10, 40);
        return action;
    }

    std::shared_ptr<CEvent> MakeRule()
    {
        auto rule = std::make_shared<CEvent>();
        rule->m_iInterType = static_cast<qint16>(Int(0, 3));
        rule->m_iSense = static_cast<qint16>(Int(0, 2));
        rule->m_iSourceType = 6;     // MIDI
        rule->m_iSource = static_cast<qint16>(Int(0, 7));
        rule->m_iItem = 0;
        rule->m_strVal1 = QString::number(Int(0, 127));
        rule->m_strVal2 = QString::number(Int(0, 127));
        rule->m_iChannel = static_cast<qint16>(Int(0, 15));
        rule->m_strMin = QString::number(Int(0, 63));
        rule->m_strMax = QString::number(Int(64, 127));
        rule->m_bClip = Int(0, 1) == 1;
        rule->m_bEnabled = true;
        rule->m_strRemarks = Word(5, 30);
        rule->m_strGroup = Word(3, 10);
        rule->m_strEvent = Word(20, 60);
        rule->m_MsgOut = std::make_shared<Collection<CAction>>();
        const int actions = Int(2, 4);
        for (int a = 0; a < actions; ++a)
            rule->m_MsgOut->Add(MakeAction());
        return rule;
    }

private:
    QRandomGenerator m_rng;
};

void fillMainConfig()
{
    CMainConfig& c = gMainConfig;
    c = CMainConfig();
    c.m_strName = QStringLiteral("Benchmark performance");
    c.m_iNExos = 2;
    c.m_iNTotems = 0;
    c.m_iNOSCs = 0;
    c.m_iNArduinos = 16;
    c.m_iNQDMs = 0;
    c.m_iNMIDIs = 0;
    c.m_iNFlash = 0;
    c.m_iNVideoCaps = 0;
    c.m_iExo1Port = 1;
    c.m_iExo2Port = 2;
    c.m_iQDMPort = 1111;
    c.m_iFlashPort = 1122;
    c.m_strMoviesRoot = QStringLiteral("C:\\QEL\\MOVIES\\");
    c.m_iMovieWidth = 800;
    c.m_iMovieHeight = 600;
    c.m_strLocalIPAddress = QStringLiteral("127.0.0.1");
    c.m_iEventsPerSec = 16;
    for (int i = 0; i <= 7; ++i) {
        c.m_iMIDIPort(i) = -1;
        c.m_iInMIDIPort(i) = -1;
        c.m_iOutMIDIPort(i) = -1;
    }
    for (int i = 0; i <= 15; ++i) {
        c.m_iOSCPort(i) = -1;
        c.m_strOSCIP(i) = QStringLiteral("0.0.0.0");
        c.m_strOSCPortLabel(i) = QStringLiteral("OSC ") + QString::number(i + 1);
        c.m_strFlashFolderPath(i) = QStringLiteral("\\\\flashmachine") + QString::number(i + 1) + QStringLiteral("\\flashfolder\\");
    }
    for (int i = 0; i <= 7; ++i) {
        c.m_iNAppPerQDM(i) = 2;
        c.m_strDisplayManagerPath(i) = QStringLiteral("\\\\QDM") + QString::number(i + 1) + QStringLiteral("machine\\qdm\\");
        for (int j = 0; j <= 7; ++j) {
            c.m_strVideoAppLabel(i, j) = QStringLiteral("Video App Label ") + QString::number(j + 1);
            c.m_strVideoAppWindow(i, j) = QStringLiteral("Video App Window ") + QString::number(j + 1);
            c.m_strVideoAppPath(i, j) = QStringLiteral("c:\\myvideopath");
        }
    }
    for (int i = 0; i <= 3; ++i)
        c.m_iTotemDevice(i) = static_cast<qint16>(i + 1);
    gNDigitalIO = 1;
    for (int i = 0; i <= 3; ++i) {
        gDigitalIOCardID(i) = i;
        gDigitalIONIn(i) = 32;
        gDigitalIONOut(i) = 32;
        gTotemAxes(i) = 2;
        gTotemButtons(i) = 5;
    }
    InitExoSensorLabels();
    InitExoTypeNames();
    InitExoData();
    InitArduinoData();
    ClearGlobalEvents();
}

// Replaces the scenes with kScenes scenes of kPartsPerScene subscenes and
// spreads `rules` rules over the subscenes at random.
void fillScenes(Generator& g, int rules)
{
    gScenes.Clear();
    for (int s = 0; s < kScenes; ++s) {
        auto scene = std::make_shared<CScene>();
        scene->m_iID = static_cast<qint16>(s);
        scene->m_strName = QStringLiteral("SCENE ") + QString::number(s + 1);
        scene->m_strRemarks = g.Word(10, 40);
        scene->InitPartList();
        for (int k = 1; k < kPartsPerScene; ++k) {
            auto part = std::make_shared<CPart>();
            part->m_iID = static_cast<qint16>(k);
            part->m_iScene = scene->m_iID;
            part->InitEventList();
            scene->AddPart(part, k + 1);
        }
        for (const auto& part : scene->PartList) {
            part->m_strName = g.Word(5, 20);
            part->m_strRemarks = g.Word(5, 30);
        }
        gScenes.Add(scene);
    }
    gLastScene = static_cast<qint16>(gScenes.Count() - 1);
    for (int r = 0; r < rules; ++r) {
        const auto& part = gScenes.Item(g.Int(1, kScenes))->PartList.Item(g.Int(1, kPartsPerScene));
        part->AddAudioEvent(g.MakeRule(), part->AudioEvents.Count() + 1);
    }
    int most = 0;
    for (const auto& scene : gScenes)
        for (const auto& part : scene->PartList)
            most = std::max(most, static_cast<int>(part->AudioEvents.Count()));
    gMaxEventsPerPart = static_cast<qint16>(most);
}

int countRules()
{
    int n = 0;
    for (const auto& scene : gScenes)
        for (const auto& part : scene->PartList)
            n += static_cast<int>(part->AudioEvents.Count());
    return n;
}

int countActions()
{
    int n = 0;
    for (const auto& scene : gScenes)
        for (const auto& part : scene->PartList)
            for (const auto& rule : part->AudioEvents)
                n += rule->m_MsgOut ? static_cast<int>(rule->m_MsgOut->Count()) : 0;
    return n;
}

struct SavedFile {
    QString name;
    QByteArray bytes;
};

// The main file and every file of the data folder, as the save left them.
std::vector<SavedFile> collectFiles(const QString& mainFile, const QString& folder)
{
    std::vector<SavedFile> files;
    auto add = [&files](const QString& path, const QString& name) {
        QFile f(path);
        if (f.open(QIODevice::ReadOnly))
            files.push_back({name, f.readAll()});
    };
    add(mainFile, QStringLiteral("main.qel"));
    const QStringList names = QDir(folder).entryList(QDir::Files, QDir::Name);
    for (const QString& name : names)
        add(folder + QLatin1Char('/') + name, name);
    return files;
}

// Plain buffered write of every file, then plain buffered read of every file.
double plainWrite(const std::vector<SavedFile>& files, const QString& folder)
{
    return timeMs([&] {
        for (const auto& file : files) {
            QFile f(folder + QLatin1Char('/') + file.name);
            if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
                std::printf("WARNING: cannot write %s\n", qPrintable(f.fileName()));
                continue;
            }
            f.write(file.bytes);
            f.close();
        }
    });
}

double plainRead(const std::vector<SavedFile>& files, const QString& folder, qint64& bytesRead)
{
    return timeMs([&] {
        bytesRead = 0;
        for (const auto& file : files) {
            QFile f(folder + QLatin1Char('/') + file.name);
            if (f.open(QIODevice::ReadOnly))
                bytesRead += f.readAll().size();
        }
    });
}

struct Row {
    int rules = 0;
    double mb = 0;
    double saveMs = 0, openMs = 0, writeMs = 0, readMs = 0;   // medians
    double saveBest = 0, openBest = 0;                          // fastest runs
    double checkMs = 0;                                         // the check of the performance, median
    double checkBest = 0;                                       // its fastest run
    double checkCpuMs = 0;                                      // its processor time, median
    size_t checkFindings = 0;
};

// Message boxes only appear on failure; report and close them so the run goes on.
void dismissMessageBoxes()
{
    if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
        std::printf("WARNING: message box: %s\n", qPrintable(box->text()));
        box->done(QMessageBox::Ok);
    }
}

// Where the time of a save and an open goes: the steps of each sequence timed
// one by one (median of kRuns), on the performance now in the model.
void printBreakdown(const QString& mainFile)
{
    const CMainConfig& c = gMainConfig;
    auto file = [](const QString& name) { return PerformanceFilePath(name); };
    struct Step {
        const char* name;
        std::function<void()> work;
    };
    auto run = [](const char* title, const std::vector<Step>& steps) {
        std::vector<std::vector<double>> times(steps.size());
        for (int r = 0; r < kRuns; ++r)
            for (size_t i = 0; i < steps.size(); ++i)
                times[i].push_back(timeMs(steps[i].work));
        std::printf("%s\n", title);
        for (size_t i = 0; i < steps.size(); ++i)
            std::printf("  %-44s %8.2f ms\n", steps[i].name, median(times[i]));
    };
    auto failed = [](bool ok, const char* what) {
        if (!ok)
            std::printf("WARNING: %s failed\n", what);
    };

    const int rules = countRules();
    run("save steps:", {
        {"main file (.qel)", [&] { failed(WriteMainConfigFile(mainFile), "main file"); }},
        {"Scenes.cfg", [&] { failed(WriteScenesFile(file(c.m_strScenesFile)), "Scenes.cfg"); }},
        {"Scenes.txt", [&] { failed(WriteSceneNamesFile(file(c.m_strScenesFilenames)), "Scenes.txt"); }},
        {"Events.cfg (WriteEventsFile)", [&] { failed(WriteEventsFile(file(c.m_strEventsFile)), "Events.cfg"); }},
        {"  of it: BuildEventText of every rule", [&] {
             qsizetype n = 0;
             for (int s = 1; s <= gScenes.Count(); ++s)
                 for (int p = 1; p <= gScenes.Item(s)->PartList.Count(); ++p)
                     for (int i = 1; i <= gScenes.Item(s)->PartList.Item(p)->AudioEvents.Count(); ++i)
                         n += BuildEventText(s, p, i, true).size();
             if (n == 0)
                 std::printf("WARNING: no rule text\n");
         }},
        {"robot files", [&] {
             failed(WriteBotEventsFile(file(c.m_strRukaBotsFile), file(c.m_strTalporFile), file(c.m_strVilnaFile)),
                    "robot files");
         }},
        {"Exo1-2.cfg", [&] {
             for (int i = 0; i < c.m_iNExos; ++i)
                 failed(WriteExoDataFile(qint16(i), file(c.m_strExoDataFile(i))), "Exo file");
         }},
        {"Arduino1-16.cfg", [&] {
             for (int i = 0; i < c.m_iNArduinos; ++i)
                 failed(WriteArduinoDataFile(qint16(i), file(c.m_strArdDataFile(i))), "Arduino file");
         }},
        {"VideoEvents.cfg", [&] { WriteVideoEventsFile(file(QStringLiteral("VideoEvents.cfg"))); }},
        {"VideoCapture.cfg", [&] { failed(WriteVideoCaptureFile(file(QStringLiteral("VideoCapture.cfg"))), "VideoCapture.cfg"); }},
        {"GlobalEvents.cfg", [&] { failed(WriteGlobalEventsFile(file(QStringLiteral("GlobalEvents.cfg"))), "GlobalEvents.cfg"); }},
    });
    run("open steps:", {
        {"main file (.qel)", [&] { failed(ReadMainConfigFile(mainFile), "main file"); }},
        {"Arduino1-16.cfg", [&] {
             for (int i = 0; i < c.m_iNArduinos; ++i)
                 failed(ReadArduinoDataFile(qint16(i), file(c.m_strArdDataFile(i))), "Arduino file");
         }},
        {"freeing the old scenes (gScenes.Clear)", [&] { gLastScene = -1; gScenes.Clear(); }},
        {"Scenes.cfg", [&] { failed(ReadScenesFile(file(c.m_strScenesFile)), "Scenes.cfg"); }},
        {"Events.cfg (ReadEventsFile)", [&] { failed(ReadEventsFile(file(c.m_strEventsFile)), "Events.cfg"); }},
        {"  of it: LineInput of every line", [&] {
             TextFileReader r(file(c.m_strEventsFile));
             qsizetype n = 0;
             while (!r.AtEnd())
                 n += r.LineInput().size();
             if (n == 0)
                 std::printf("WARNING: no line read\n");
         }},
        {"GlobalEvents.cfg", [&] { failed(ReadGlobalEventsFile(file(QStringLiteral("GlobalEvents.cfg"))), "GlobalEvents.cfg"); }},
        {"Exo1-2.cfg", [&] {
             for (int i = 0; i < c.m_iNExos; ++i)
                 failed(ReadExoDataFile(qint16(i), file(c.m_strExoDataFile(i))), "Exo file");
         }},
        {"VideoCapture.cfg", [&] { failed(ReadVideoCaptureFile(file(QStringLiteral("VideoCapture.cfg"))), "VideoCapture.cfg"); }},
    });
    if (countRules() != rules)
        std::printf("WARNING: after the open steps %d rules, expected %d\n", countRules(), rules);
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    ConfigureMemoryAllocator();   // as the program does at start
    QApplication app(argc, argv);
    QTimer dismisser;
    QObject::connect(&dismisser, &QTimer::timeout, &dismissMessageBoxes);
    dismisser.start(50);   // runs only inside the event loop of a message box

    QTemporaryDir tmp;
    if (!tmp.isValid()) {
        std::printf("cannot create a temporary folder\n");
        return 1;
    }
    std::printf("save/open benchmark: %d scenes x %d subscenes, 2-4 actions per rule, 16 Arduinos, 2 suits, "
                "%d runs per figure (median), seed %u\n",
                kScenes, kPartsPerScene, kRuns, kSeed);
    std::printf("folder: %s\n\n", qPrintable(tmp.path()));

    std::vector<Row> rows;
    Generator g(kSeed);
    for (int size : kSizes) {
        fillMainConfig();
        fillScenes(g, size);
        const int rulesBefore = countRules();
        const int actionsBefore = countActions();

        const QString name = QStringLiteral("bench%1").arg(size);
        gConfigFolder = tmp.path() + QLatin1Char('/');
        gConfigName = name;
        gConfigFilePath = gConfigFolder + gConfigName + QStringLiteral(".qel");
        const QString mainFile = gConfigFilePath;
        const QString dataFolder = gConfigFolder + gConfigName;

        // One untimed save gives the bytes of the plain copy; then each run
        // times save, plain write, open and plain read one after the other, so
        // that a busy machine weighs on both sides of each ratio alike.
        SaveConfiguration(mainFile);
        const std::vector<SavedFile> files = collectFiles(mainFile, dataFolder);
        qint64 total = 0;
        for (const auto& f : files)
            total += f.bytes.size();
        const QString copyFolder = tmp.path() + QStringLiteral("/copy%1").arg(size);
        QDir().mkpath(copyFolder);
        plainWrite(files, copyFolder);

        std::vector<double> saves, opens, writes, reads;
        for (int run = 0; run < kRuns; ++run) {
            saves.push_back(timeMs([&] { SaveConfiguration(mainFile); }));
            writes.push_back(plainWrite(files, copyFolder));
            opens.push_back(timeMs([&] { OpenConfiguration(mainFile); }));
            const int rulesAfter = countRules();
            const int actionsAfter = countActions();
            if (rulesAfter != rulesBefore || actionsAfter != actionsBefore)
                std::printf("WARNING: %d rules: after open %d rules / %d actions, expected %d / %d\n", size,
                            rulesAfter, actionsAfter, rulesBefore, actionsBefore);
            qint64 back = 0;
            reads.push_back(plainRead(files, copyFolder, back));
            if (back != total)
                std::printf("WARNING: plain read gave %lld bytes, expected %lld\n", static_cast<long long>(back),
                            static_cast<long long>(total));
        }

        // The check of the performance as the last open left it.
        std::vector<double> checks, checkCpu;
        size_t findings = 0;
        for (int run = 0; run < kRuns; ++run) {
            double cpu = 0;
            checks.push_back(timeMs([&] { cpu = cpuMs([&] { findings = CheckPerformance().size(); }); }));
            checkCpu.push_back(cpu);
        }
        if (countRules() != rulesBefore)
            std::printf("WARNING: %d rules: the check changed the number of rules to %d\n", size, countRules());

        Row row;
        row.checkMs = median(checks);
        row.checkBest = *std::min_element(checks.begin(), checks.end());
        row.checkCpuMs = median(checkCpu);
        row.checkFindings = findings;
        row.rules = size;
        row.mb = static_cast<double>(total) / (1024.0 * 1024.0);
        row.saveMs = median(saves);
        row.openMs = median(opens);
        row.writeMs = median(writes);
        row.readMs = median(reads);
        row.saveBest = *std::min_element(saves.begin(), saves.end());
        row.openBest = *std::min_element(opens.begin(), opens.end());
        rows.push_back(row);
        std::printf("  %5d rules: %zu files, %lld bytes, %d actions (largest subscene %d rules)\n", size, files.size(),
                    static_cast<long long>(total), actionsBefore, int(gMaxEventsPerPart));
        if (size == kSizes.back()) {
            std::printf("\nbreakdown at %d rules:\n", size);
            printBreakdown(mainFile);
            std::printf("\n");
        }
    }

    std::printf("\n%7s %9s %8s %10s %10s %8s %10s %10s %9s %9s\n", "rules", "files_MB", "save_ms", "save_MB/s",
                "save/copy", "open_ms", "open_MB/s", "open/copy", "copyW_ms", "copyR_ms");
    for (const Row& r : rows)
        std::printf("%7d %9.2f %8.1f %10.1f %9.1fx %8.1f %10.1f %9.1fx %9.2f %9.2f\n", r.rules, r.mb, r.saveMs,
                    r.mb / (r.saveMs / 1000.0), r.saveMs / r.writeMs, r.openMs, r.mb / (r.openMs / 1000.0),
                    r.openMs / r.readMs, r.writeMs, r.readMs);

    // Linearity: the cost per 1,000 rules at each size, which climbs with the
    // size when the time grows faster than the rules (a fixed cost makes it fall
    // instead), and the least-squares line time = fixed + slope * rules.
    // Linear: no size costs more than 1.3 times per rule than the cheapest smaller size.
    // The verdict is taken from the fastest runs, which a busy machine disturbs least.
    auto fit = [&rows](double Row::*field, const char* name) {
        const double n = static_cast<double>(rows.size());
        double sx = 0, sy = 0, sxx = 0, sxy = 0;
        for (const Row& r : rows) {
            const double x = r.rules / 1000.0, y = r.*field;
            sx += x; sy += y; sxx += x * x; sxy += x * y;
        }
        const double slope = (n * sxy - sx * sy) / (n * sxx - sx * sx);
        const double fixed = (sy - slope * sx) / n;
        std::printf("%-15s ms per 1,000 rules:", name);
        double cheapest = 0, worstGrowth = 0;
        for (size_t i = 0; i < rows.size(); ++i) {
            const double perThousand = rows[i].*field * 1000.0 / rows[i].rules;
            std::printf("  %d: %.1f", rows[i].rules, perThousand);
            if (i > 0)
                worstGrowth = std::max(worstGrowth, perThousand / cheapest);
            cheapest = i == 0 ? perThousand : std::min(cheapest, perThousand);
        }
        const bool linear = worstGrowth <= 1.3;
        std::printf("\n%-15s fit %.1f ms + %.2f ms per 1,000 rules; largest rise of the cost per rule %.2fx -> %s\n",
                    "", fixed, slope, worstGrowth, linear ? "linear" : "NOT linear");
        return linear;
    };
    std::printf("\n");
    fit(&Row::saveMs, "save (median)");
    fit(&Row::openMs, "open (median)");
    const bool saveLinear = fit(&Row::saveBest, "save (fastest)");
    const bool openLinear = fit(&Row::openBest, "open (fastest)");
    std::printf("time grows linearly with the number of rules (fastest runs): save %s, open %s\n",
                saveLinear ? "yes" : "NO", openLinear ? "yes" : "NO");

    // The check writes every file into a scratch folder, reads it back and
    // compares, and looks at the devices: about one save and one open more.
    constexpr double kCheckLimitMs = 200.0;
    std::printf("\ncheck of the performance, ms (median wall clock / fastest wall clock / median processor time), "
                "findings:\n");
    const Row* at10000 = nullptr;
    for (const Row& r : rows) {
        std::printf("  %5d rules: %7.1f / %7.1f / %7.1f   %zu\n", r.rules, r.checkMs, r.checkBest, r.checkCpuMs,
                    r.checkFindings);
        if (r.rules == 10000)
            at10000 = &r;
    }
    if (at10000)
        std::printf("check of 10,000 rules: %.1f ms wall clock (fastest %.1f), %.1f ms processor time; limit %.0f ms "
                    "-> %s\n",
                    at10000->checkMs, at10000->checkBest, at10000->checkCpuMs, kCheckLimitMs,
                    at10000->checkMs < kCheckLimitMs       ? "within"
                    : at10000->checkCpuMs < kCheckLimitMs ? "within in processor time (the wall clock waited for a "
                                                             "busy core)"
                                                           : "OVER");
    return 0;
}
