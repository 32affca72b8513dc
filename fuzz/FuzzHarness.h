#pragma once
// What the rule readers' fuzz targets share: an offscreen application (the
// readers show a message box on failure), a closer that dismisses every box
// at once, and a temporary folder to write the input bytes into.
#include <cstddef>
#include <cstdint>
#include <QApplication>
#include <QFile>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTimer>

class FuzzHarness : public QObject {
public:
    static FuzzHarness& instance()
    {
        static FuzzHarness harness;
        return harness;
    }

    // Writes the bytes to `name` in the temporary folder; an empty text if that fails.
    QString write(const QString& name, const uint8_t* data, size_t size)
    {
        const QString path = m_dir.filePath(name);
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
            return QString();
        file.write(reinterpret_cast<const char*>(data), qint64(size));
        return path;
    }
    QString path(const QString& name) const { return m_dir.filePath(name); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Show)
            if (auto* box = qobject_cast<QMessageBox*>(watched))
                QTimer::singleShot(0, box, [box] { box->done(QMessageBox::Ok); });
        return false;
    }

private:
    FuzzHarness() { m_app.installEventFilter(this); }

    int m_argc = 3;
    char m_arg0[8] = "fuzz";
    char m_arg1[16] = "-platform";
    char m_arg2[16] = "offscreen";
    char* m_argv[4] = {m_arg0, m_arg1, m_arg2, nullptr};
    QApplication m_app{m_argc, m_argv};
    QTemporaryDir m_dir;
};
