#include "rules/ModuleRuleEdit.h"

qint16 gRuleEditMode = 0;
qint16 gRuleIndex = 0;
bool gRuleAccepted = false;
Collection<CAction> gEditActions;

qint16 gRuleInterType = 0;
qint16 gRuleSense = 0;
qint16 gRuleSourceType = 0;
qint16 gRuleSource = 0;
qint16 gRuleItem = 0;
QString gRuleVariable;
QString gRuleVal1;
QString gRuleVal2;
qint16 gRuleChannel = 0;
QString gRuleMin;
QString gRuleMax;
bool gRuleClip = false;
bool gRuleEnabled = false;
QString gRuleRemarks;
QString gRuleGroup;
QString gRuleEvent;
