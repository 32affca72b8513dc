#include "rules/ModuleGlobalEvents.h"
#include "rules/ModuleEvents.h"
#include "support/Convert.h"
#include "support/ModuleGUI.h"
#include "support/NumberText.h"
#include "support/RuntimeError.h"
#include "support/TextFile.h"

Collection<CEvent> gGlobalEvents;
qint16 gGlobalEventCount = 0;

void ClearGlobalEvents()
{
    gGlobalEvents = Collection<CEvent>();
    gGlobalEventCount = 0;
}

void AddGlobalEvent(std::shared_ptr<CEvent> event, qint16 position)
{
    if (position < 1 || position > gGlobalEvents.Count())
        gGlobalEvents.Add(std::move(event));
    else
        gGlobalEvents.Add(std::move(event), position);
    ++gGlobalEventCount;
}

void RemoveGlobalEvent(qint16 position)
{
    if (position < 1 || position > gGlobalEvents.Count())
        return;
    gGlobalEvents.Remove(position);
    --gGlobalEventCount;
}

void CopyGlobalEvent(CEvent& target, const CEvent& source) { CopyEvent(target, source); }

QString BuildGlobalEventText(int rule)
{
    CEvent& event = *gGlobalEvents.Item(rule);
    QString line;
    if (event.m_strRemarks.isEmpty())
        event.m_strRemarks = QStringLiteral(" ");   // stored back, as every field written as " "
    line += event.m_strRemarks + u';';
    line += TypeToFileToken(event.m_iSourceType) + u';';
    line += DeviceToToken(event.m_iSource, event.m_iSourceType) + u';';
    // The item: as in Events.cfg, except that Automatic rules never carry their variable.
    switch (event.m_iSourceType) {
    case 0: line += QStringLiteral(" "); break;
    case 1: line += ExoItemToCode(event.m_iItem); break;
    case 2: line += TotemItemToCode(event.m_iItem, event.m_iSource); break;
    case 3:
    case 8: line += event.m_strVariable; break;
    case 5:
    case 6:
    case 7: line += QString::number(event.m_iItem); break;
    default: line += QStringLiteral("ERROR"); break;
    }
    line += u';';
    return line + BuildRuleBlockTail(event);
}

bool WriteGlobalEventsFile(const QString& path)
{
    try {
        TextFileWriter file(path);
        file.PrintLine(QStringLiteral(";-----------------------------------------------------"));
        file.PrintLine(QStringLiteral("; QEL Global Events Configuration File"));
        file.PrintLine(QStringLiteral(";-----------------------------------------------------"));
        file.PrintLine(QString());
        for (int i = 1; i <= gGlobalEvents.Count(); ++i)
            file.PrintLine(BuildGlobalEventText(i));
        file.Close();
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

bool ParseGlobalEvent(TextFileReader& file, const QString& line, CEvent& event)
{
    try {
        if (line.size() < 4)
            return true;
        int pos = 1;
        const QString remarks = GetNextField(line, pos);
        event.m_strRemarks = remarks == u" " ? QString() : remarks;
        event.m_bEnabled = true;
        event.m_iSourceType = FileTokenToType(GetNextField(line, pos));
        event.m_iSource = TokenToDevice(GetNextField(line, pos));
        const QString item = GetNextField(line, pos);
        if (event.m_iSourceType != 0) {
            event.m_iItem = TextToItem(item, event.m_iSourceType, event.m_iSource);
            if (event.m_iItem == -1 && IsNumberText(item))
                event.m_iItem = ToInteger(item);
        }
        if (event.m_iSourceType == 3 || event.m_iSourceType == 8)
            event.m_strVariable = item;
        return ParseRuleBlockTail(file, line, pos, event);
    } catch (const std::exception&) {
        return false;
    }
}

bool ReadGlobalEventsFile(const QString& path)
{
    try {
        ClearGlobalEvents();
        TextFileReader file(path);
        for (int i = 0; i < 3; ++i)
            file.LineInput();
        while (!file.AtEnd()) {
            QString line;
            do {
                line = file.LineInput();
            } while (line.isEmpty() && !file.AtEnd());
            if (file.AtEnd())
                break;
            auto event = std::make_shared<CEvent>();
            if (!ParseGlobalEvent(file, line, *event))
                throw RuntimeError(QStringLiteral("Bad global rule"));
            AddGlobalEvent(event, 0);
        }
        file.Close();
        return true;
    } catch (const std::exception&) {
        MsgBoxExclamation(QStringLiteral("Error opening global events configuration file!"));
        return false;
    }
}
