// Printing the rule list of the current subscene.
#include "mainwindow/FormInitial.h"
#include <QTreeWidget>
#include <cstdio>
#include <cstdlib>
#include "model/CMainConfig.h"
#include "model/CScene.h"
#include "model/ModuleGlobals.h"
#include "rules/CEvent.h"
#include "support/Convert.h"
#include "support/ModuleGUI.h"
#include "support/Printer.h"
#include "support/RuntimeError.h"

// The Print entry. Nothing here catches a failure: the heading of each rule is
// made by adding "Event ", the rule's number, ": " and its remarks as numbers,
// and "Event " is no number, so a list with a rule ends the program (see
// EndWithRunTimeError) before anything is sent. A list with no rule prints one
// page with the scene heading.
void FormInitial::Print_Click()
{
    Printer printer(gMainConfig.m_strName);
    printer.SetOrientation(2);
    printer.SetFontBold(true);
    const auto& scene = gScenes.Item(gCurrentScene + 1);
    const auto& part = scene->PartList.Item(gCurrentPart + 1);
    printer.PrintLine(QStringLiteral("SCENE ") + QString::number(gCurrentScene + 1) + QStringLiteral(": ")
                      + scene->m_strName + QStringLiteral("  ||  PART ") + QString::number(gCurrentPart + 1)
                      + QStringLiteral(": ") + part->m_strName);
    printer.SetFontBold(false);
    // Every row but the trailing empty one; the rule is always the subscene's.
    for (int row = 0; row < ListEvents->topLevelItemCount() - 1; ++row) {
        const qint16 number = ToInteger(ListEvents->topLevelItem(row)->text(0));
        const auto& rule = part->AudioEvents.Item(number);
        printer.SetFontBold(true);
        const double heading = ToDouble(QStringLiteral("Event ")) + number + ToDouble(QStringLiteral(": "))
                               + ToDouble(rule->m_strRemarks);
        printer.PrintLine(QString::number(heading));
        printer.SetFontBold(false);
        printer.PrintLine(rule->m_strEvent);
        printer.PrintLine(QString());
    }
    printer.EndDoc();
}

// A run-time failure that no handler traps: the run-time's message, then the
// process ends at once. No closing step runs, so no auto-save is written.
void EndWithRunTimeError(const RuntimeError& error)
{
    QString text;
    if (dynamic_cast<const ConversionError*>(&error))
        text = QStringLiteral("Run-time error '13':\n\nType mismatch");
    else if (dynamic_cast<const RangeError*>(&error))
        text = QStringLiteral("Run-time error '9':\n\nSubscript out of range");
    else
        text = QStringLiteral("Run-time error:\n\n") + QString::fromStdString(error.what());
    MsgBox(text, MsgButtons::OK, MsgIcon::Critical);
    std::fflush(stdout);
    std::fflush(stderr);
    std::_Exit(1);
}
