#pragma once
// The calibration dialog against simulated suits on pseudo-terminals: a suit
// standing as COM port n, polling a condition from the event queue while the
// sampling loop runs, and a watchdog so that no run outlives its test.
#include <QtTest>
#include <QComboBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <functional>
#include <memory>
#include "SuitSimulator.h"
#include "devices/FormExoCalibration.h"
#include "model/CExoData.h"
#include "model/CMainConfig.h"
#include "model/ModuleGlobals.h"
#include "support/DialogDriver.h"

inline const QString kStartCaption = QStringLiteral("Start Automatic Calibration");
inline const QString kStopCaption = QStringLiteral("Stop Automatic Calibration");

// A simulated suit answering as COM port `port`.
class Suit {
public:
    Suit(int port, SuitOptions options) : m_sim(std::move(options)), m_port(port)
    {
        std::string error;
        if (!m_sim.start(&error))
            qFatal("cannot start the simulated suit: %s", error.c_str());
        qputenv(variable().constData(), QByteArray::fromStdString(m_sim.devicePath()));
    }
    ~Suit()
    {
        m_sim.stop();
        qunsetenv(variable().constData());
    }
    SuitSimulator& sim() { return m_sim; }
    std::size_t requests() const { return m_sim.requestCount(); }

private:
    QByteArray variable() const { return "QEL_COM" + QByteArray::number(m_port); }
    SuitSimulator m_sim;
    int m_port;
};

// The suit's count of requests once its reader has caught up with the line:
// the count has not moved for 200 ms (a loaded machine may be slow to run it).
inline std::size_t settledRequests(const Suit& suit, int timeoutMs = 10000)
{
    std::size_t last = suit.requests();
    QElapsedTimer clock, still;
    clock.start();
    still.start();
    while (clock.elapsed() < timeoutMs && still.elapsed() < 200) {
        QTest::qWait(10);
        if (suit.requests() != last) {
            last = suit.requests();
            still.restart();
        }
    }
    return last;
}

// A frame whose byte for channel c (1 to 32) is value(c).
inline SuitFrame frameOf(const std::function<int(int)>& value)
{
    SuitFrame f;
    for (int c = 1; c <= 32; ++c)
        f[c - 1] = static_cast<std::uint8_t>(value(c));
    return f;
}

inline std::vector<std::uint8_t> bytesOf(std::initializer_list<SuitFrame> frames)
{
    std::vector<std::uint8_t> bytes;
    for (const auto& f : frames)
        bytes.insert(bytes.end(), f.begin(), f.end());
    return bytes;
}

// Checks `condition` every millisecond from the event queue, which the sampling
// loop keeps running; runs `action` once when it holds, or after the time-out.
inline void when(QObject* context, std::function<bool()> condition, std::function<void()> action,
                 int timeoutMs = 10000)
{
    auto* timer = new QTimer(context);
    auto clock = std::make_shared<QElapsedTimer>();
    clock->start();
    timer->setInterval(1);
    QObject::connect(timer, &QTimer::timeout, context, [=] {
        if (!condition() && clock->elapsed() < timeoutMs)
            return;
        timer->stop();
        timer->deleteLater();
        action();
    });
    timer->start();
}

inline void after(QObject* context, int ms, std::function<void()> action)
{
    QTimer::singleShot(ms, context, std::move(action));
}

// Closes the dialog (which ends a run) if a test has not finished in time.
class Watchdog {
public:
    explicit Watchdog(QDialog* dialog, int ms = 30000)
    {
        m_timer.setSingleShot(true);
        QObject::connect(&m_timer, &QTimer::timeout, dialog, [dialog, this] {
            m_fired = true;
            dialog->reject();
        });
        m_timer.start(ms);
    }
    bool fired() const { return m_fired; }

private:
    QTimer m_timer;
    bool m_fired = false;
};

// The dialog as the opener leaves it: working copies of both suits, shown.
class CalibrationSession {
public:
    std::unique_ptr<FormExoCalibration> form;

    static void resetModel(int suits)
    {
        InitExoData();
        gMainConfig.m_iNExos = static_cast<qint16>(suits);
        gMainConfig.m_iExo1Port = 1;
        gMainConfig.m_iExo2Port = 2;
        gMainConfig.m_bUpdate = false;
        gDirty = false;
        gExoData(0).m_iID = 1;
        gExoData(1).m_iID = 2;
    }
    void open()
    {
        gExoDataEdit = gExoData;
        form = std::make_unique<FormExoCalibration>();
        form->show();
    }
    template <typename T = QWidget>
    T* control(const QString& name) { return DialogDriver::find<T>(form.get(), name); }
    QLineEdit* textMin(int row) { return control<QLineEdit>(QStringLiteral("TextMin(%1)").arg(row)); }
    QLineEdit* textMax(int row) { return control<QLineEdit>(QStringLiteral("TextMax(%1)").arg(row)); }
    // Every row's range as shown, "min-max".
    QStringList ranges()
    {
        QStringList shown;
        for (int row = 0; row < kExoRows; ++row)
            shown << textMin(row)->text() + "-" + textMax(row)->text();
        return shown;
    }
    QString errors() { return control<QLabel>(QStringLiteral("LabelErrors"))->text(); }
    QPushButton* button(const char* name) { return control<QPushButton>(QString::fromLatin1(name)); }
    void click(const char* name) { DialogDriver::click(form.get(), QString::fromLatin1(name)); }
    bool sampling() { return button("CommandAuto")->text() == kStopCaption && !button("CommandOK")->isEnabled(); }

    // Clicks Start; `whileRunning` is scheduled first, and the click returns when the loop has ended.
    void run(const std::function<void()>& whileRunning)
    {
        Watchdog dog(form.get());
        whileRunning();
        click("CommandAuto");
        QVERIFY2(!dog.fired(), "the run did not end in time");
    }
    // Stops the run with a click on CommandAuto once `condition` holds.
    void stopWhen(std::function<bool()> condition, int timeoutMs = 10000)
    {
        when(form.get(), std::move(condition), [this] { click("CommandAuto"); }, timeoutMs);
    }
};
