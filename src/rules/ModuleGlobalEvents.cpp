#include "rules/ModuleGlobalEvents.h"
#include "rules/ModuleEvents.h"
#include "support/ModuleGUI.h"
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
    QString text;
    // As in Events.cfg without the place fields, except that Automatic rules never carry their variable.
    AppendRuleBlock(text, event, false);
    return text;
}

bool WriteGlobalEventsFile(const QString& path)
{
    try {
        TextFileWriter file(path);
        file.PrintLine(QStringLiteral(";-----------------------------------------------------"));
        file.PrintLine(QStringLiteral("; QEL Global Events Configuration File"));
        file.PrintLine(QStringLiteral(";-----------------------------------------------------"));
        file.PrintLine(QString());
        QString block;   // one buffer for every block, kept at its largest size
        for (int i = 1; i <= gGlobalEvents.Count(); ++i) {
            block.resize(0);
            AppendRuleBlock(block, *gGlobalEvents.Item(i), false);
            file.PrintLine(block);
        }
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
        return ParseRuleBlock(file, line, 0, event, false);
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
