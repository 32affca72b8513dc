#pragma once
// The rule clipboard of the main window, shared with the robot forms: deep
// copies of rules, held for the run, never saved.
#include <memory>
#include "files/CBotEvent.h"
#include "rules/CEvent.h"
#include "support/Collection.h"

// One copied rule: a rule of a subscene or a global rule (Event), or a robot
// rule (BotEvent). Exactly one of the two is set.
class CClipboardItem {
public:
    std::shared_ptr<CEvent> Event;
    std::shared_ptr<CBotEvent> BotEvent;
};

extern Collection<CClipboardItem> gClipboard;
