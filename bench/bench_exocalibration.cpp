// Times the live calibration of the exoskeleton dialog against the simulated
// suit on a pseudo-terminal.
//
// For a suit paced at 56000 baud (4 bytes out and 32 back an exchange, 10 bits
// a byte) and for one answering at once, it prints the frames per second that
// a bare request-and-read client reaches, those the dialog reaches (it rewrites
// all 58 range boxes on every frame), the ratio and the dialog's unanswered
// requests; then the time from a Stop click to the end of the sampling loop.
#include <algorithm>
#include <cstdio>
#include <vector>
#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include "SuitSimulator.h"
#include "devices/FormExoCalibration.h"
#include "model/CExoData.h"
#include "model/CMainConfig.h"
#include "model/ModuleGlobals.h"
#include "support/CommPort.h"
#include "support/ModuleGUI.h"

namespace {

constexpr int kRunMs = 3000;


// Frames a second of a client that sends a request and reads the answer, over and over.
double bareClient(int port)
{
    CommPort line;
    line.setCommPort(port);
    line.setInputLen(32);
    line.setPortOpen(true);
    const QByteArray request("\x40\x01\x20\x00", 4);
    QElapsedTimer clock;
    clock.start();
    long frames = 0;
    while (clock.elapsed() < kRunMs) {
        line.output(request);
        QElapsedTimer wait;
        wait.start();
        while (line.inBufferCount() < 32 && wait.elapsed() < 50)
            line.waitForInput(5);
        if (line.inBufferCount() >= 32) {
            line.input();
            ++frames;
        }
    }
    const double fps = frames * 1000.0 / clock.elapsed();
    line.setPortOpen(false);
    return fps;
}

struct DialogRun {
    double fps = 0;
    long errors = 0;
};

// Frames a second of the dialog's live calibration, and the requests that went unanswered.
DialogRun dialogClient(SuitSimulator& suit)
{
    gExoDataEdit = gExoData;
    FormExoCalibration form;
    form.show();
    DialogRun run;
    const std::size_t before = suit.answerCount();
    QElapsedTimer clock;
    QTimer::singleShot(kRunMs, &form, [&] {
        run.errors = form.LabelErrors->text().toLong();
        run.fps = (suit.answerCount() - before) * 1000.0 / clock.elapsed();
        form.CommandAuto->click();
    });
    clock.start();
    form.CommandAuto->click();
    return run;
}

// Milliseconds from a Stop click to the return of the click that started the run.
std::vector<double> stopTimes(int runs)
{
    std::vector<double> times;
    FormExoCalibration form;
    form.show();
    for (int i = 0; i < runs; ++i) {
        QElapsedTimer clock;
        QTimer::singleShot(200 + 17 * i, &form, [&] {
            clock.start();
            form.CommandAuto->click();
        });
        form.CommandAuto->click();
        times.push_back(clock.nsecsElapsed() / 1e6);
    }
    std::sort(times.begin(), times.end());
    return times;
}

}  // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    InitExoData();
    gMainConfig.m_iNExos = 1;
    gMainConfig.m_iExo1Port = 1;
    gExoData(0).m_iID = 1;

    std::printf("Live calibration against the simulated suit, %d s a run; frames a second\n"
                "(the line at 56000 baud allows %.1f):\n", kRunMs / 1000, 56000 / 10.0 / 36);
    std::printf("  %-12s %10s %10s %8s %8s\n", "suit", "bare", "dialog", "ratio", "errors");
    for (int baud : {56000, 0}) {
        SuitOptions options;
        options.baud = baud;
        options.periodMs = 1000;
        SuitSimulator suit(options);
        std::string error;
        if (!suit.start(&error)) {
            std::fprintf(stderr, "cannot start the simulated suit: %s\n", error.c_str());
            return 1;
        }
        qputenv("QEL_COM1", QByteArray::fromStdString(suit.devicePath()));
        const double bare = bareClient(1);
        const DialogRun run = dialogClient(suit);
        std::printf("  %-12s %10.1f %10.1f %7.1f%% %8ld\n", baud ? "56000 baud" : "at once", bare, run.fps,
                    100.0 * run.fps / bare, run.errors);
        suit.stop();
    }

    SuitOptions silent;
    silent.dropEvery = 1;
    SuitSimulator suit(silent);
    if (!suit.start())
        return 1;
    qputenv("QEL_COM1", QByteArray::fromStdString(suit.devicePath()));
    const std::vector<double> times = stopTimes(15);
    std::printf("Stop click to the end of the loop, %zu runs (suit not answering, ms): median %.2f, max %.2f\n",
                times.size(), times[times.size() / 2], times.back());
    suit.stop();
    return 0;
}
