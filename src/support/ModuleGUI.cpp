#include "support/ModuleGUI.h"
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QMessageBox>
#include <QStringList>

namespace {
MessageCapture* gCapture = nullptr;
}

MessageCapture::MessageCapture() : m_outer(gCapture) { gCapture = this; }
MessageCapture::~MessageCapture() { gCapture = m_outer; }

MsgAnswer MsgBox(const QString& text, MsgButtons buttons, MsgIcon icon, const QString& title)
{
    if (gCapture) {
        gCapture->texts << text;
        switch (buttons) {
        case MsgButtons::OK: return MsgAnswer::OK;
        case MsgButtons::YesNo: return MsgAnswer::No;
        default: return MsgAnswer::Cancel;
        }
    }
    QMessageBox box(QApplication::activeWindow());
    box.setObjectName(QStringLiteral("MsgBox"));
    box.setWindowTitle(title);
    box.setText(text);
    switch (icon) {
    case MsgIcon::None: box.setIcon(QMessageBox::NoIcon); break;
    case MsgIcon::Exclamation: box.setIcon(QMessageBox::Warning); break;
    case MsgIcon::Question: box.setIcon(QMessageBox::Question); break;
    case MsgIcon::Information: box.setIcon(QMessageBox::Information); break;
    case MsgIcon::Critical: box.setIcon(QMessageBox::Critical); break;
    }
    switch (buttons) {
    case MsgButtons::OK:
        box.setStandardButtons(QMessageBox::Ok);
        box.setEscapeButton(QMessageBox::Ok);
        break;
    case MsgButtons::OKCancel:
        box.setStandardButtons(QMessageBox::Ok | QMessageBox::Cancel);
        box.setEscapeButton(QMessageBox::Cancel);
        break;
    case MsgButtons::YesNo:
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        box.setEscapeButton(QMessageBox::No);
        break;
    case MsgButtons::YesNoCancel:
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
        box.setEscapeButton(QMessageBox::Cancel);
        break;
    }
    switch (box.exec()) {
    case QMessageBox::Yes: return MsgAnswer::Yes;
    case QMessageBox::No: return MsgAnswer::No;
    case QMessageBox::Cancel: return MsgAnswer::Cancel;
    default: return MsgAnswer::OK;
    }
}

void MsgBoxExclamation(const QString& text) { MsgBox(text, MsgButtons::OK, MsgIcon::Exclamation); }

namespace {

// "Configuration Files (*.qel)|*.qel" -> "Configuration Files (*.qel)".
QString qtFilter(const QString& filter)
{
    const QStringList parts = filter.split(u'|');
    QStringList out;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const QString& desc = parts[i];
        const QString patterns = QString(parts[i + 1]).replace(u';', u' ');
        out << (desc.contains(u'(') ? desc : desc + QStringLiteral(" (") + patterns + u')');
    }
    return out.join(QStringLiteral(";;"));
}

QString runFileDialog(QWidget* parent, const QString& name, const QString& filter, const QString& defaultExt,
                      const QString& title, bool save)
{
    QFileDialog dialog(parent, title);
    dialog.setObjectName(name);
    dialog.setOption(QFileDialog::DontUseNativeDialog, true);
    dialog.setNameFilter(qtFilter(filter));
    dialog.setDefaultSuffix(QString(defaultExt).remove(0, defaultExt.startsWith(u'.') ? 1 : 0));
    dialog.setAcceptMode(save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return QString();
    return QDir::toNativeSeparators(dialog.selectedFiles().first());
}

} // namespace

QString ShowOpenDialog(QWidget* parent, const QString& name, const QString& filter, const QString& defaultExt,
                       const QString& title)
{
    return runFileDialog(parent, name, filter, defaultExt, title.isEmpty() ? QStringLiteral("Open") : title, false);
}

QString ShowSaveDialog(QWidget* parent, const QString& name, const QString& filter, const QString& defaultExt,
                       const QString& title)
{
    return runFileDialog(parent, name, filter, defaultExt, title.isEmpty() ? QStringLiteral("Save As") : title, true);
}

void DoEvents() { QCoreApplication::processEvents(QEventLoop::AllEvents); }

qint64 GetTickCount()
{
    static QElapsedTimer clock = [] {
        QElapsedTimer t;
        t.start();
        return t;
    }();
    return clock.elapsed();
}
