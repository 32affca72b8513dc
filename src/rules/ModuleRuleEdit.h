#pragma once
// The hand-over between the main window and the rule editor: the rule asked
// for, and the rule accepted. Module-level, alive for the whole run. The robot
// forms share the mode, the index and the accepted flag.
#include <QString>
#include <QtGlobal>
#include "rules/CAction.h"
#include "support/Collection.h"

extern qint16 gRuleEditMode;            // 1 add a rule, 2 edit one; any other value loads nothing
extern qint16 gRuleIndex;               // 0-based position of the rule in its list
extern bool gRuleAccepted;              // set by the editor's OK; the caller tests and clears it
extern Collection<CAction> gEditActions; // the editor's working list of actions

// The accepted rule, field by field, as the CEvent fields they stand for.
extern qint16 gRuleInterType;
extern qint16 gRuleSense;
extern qint16 gRuleSourceType;
extern qint16 gRuleSource;
extern qint16 gRuleItem;
extern QString gRuleVariable;
extern QString gRuleVal1;
extern QString gRuleVal2;
extern qint16 gRuleChannel;
extern QString gRuleMin;
extern QString gRuleMax;
extern bool gRuleClip;
extern bool gRuleEnabled;
extern QString gRuleRemarks;
extern QString gRuleGroup;
extern QString gRuleEvent;
