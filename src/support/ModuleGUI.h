#pragma once
// The small user-interface runtime: message boxes, the open and save file
// dialogs, letting the event queue run, and a millisecond tick count.
#include <QString>
#include <QStringList>
#include <QtGlobal>

class QWidget;

enum class MsgButtons { OK, OKCancel, YesNo, YesNoCancel };
enum class MsgIcon { None, Exclamation, Question, Information, Critical };
enum class MsgAnswer { OK, Cancel, Yes, No };

// The title of every message box of the program.
inline const QString kAppTitle = QStringLiteral("QEL Setup");

// Shows a modal QMessageBox over the active window and returns the button pressed.
// Closing the box with Escape answers Cancel where there is one, else No, else OK.
MsgAnswer MsgBox(const QString& text, MsgButtons buttons = MsgButtons::OK,
                 MsgIcon icon = MsgIcon::None, const QString& title = kAppTitle);

// While one lives, message boxes are not shown: their texts are gathered in
// `texts` and each box answers as if closed with Escape. For work that runs the
// readers without a person watching, such as the check of a performance.
class MessageCapture {
public:
    MessageCapture();
    ~MessageCapture();
    MessageCapture(const MessageCapture&) = delete;
    MessageCapture& operator=(const MessageCapture&) = delete;
    QStringList texts;
private:
    MessageCapture* m_outer;
};

// The usual validation message: title "QEL Setup", exclamation icon, OK.
void MsgBoxExclamation(const QString& text);

// Qt's own (non-native) file dialogs. `filter` is in pairs "Description|pattern|...",
// `defaultExt` such as ".qel" is added to a name typed without one. The dialog
// carries `name` as its objectName. Returns the chosen full path with native
// separators, or an empty text on Cancel.
QString ShowOpenDialog(QWidget* parent, const QString& name, const QString& filter,
                       const QString& defaultExt, const QString& title = QString());
QString ShowSaveDialog(QWidget* parent, const QString& name, const QString& filter,
                       const QString& defaultExt, const QString& title = QString());

// Lets the event queue run once.
void DoEvents();

// Milliseconds from a fixed moment; only differences mean anything.
qint64 GetTickCount();
