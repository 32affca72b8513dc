#include "devices/RuleMembers.h"
#include "files/CBotEvent.h"
#include "model/CLightsEvent.h"
#include "rules/CEvent.h"
#include "support/RuntimeError.h"

namespace {
[[noreturn]] void noSuchMember(const QString& name)
{
    throw RuntimeError(QStringLiteral("Object doesn't support this property or method: ") + name);
}
}

qint16& IntegerMember(CEvent& rule, const QString& name)
{
    if (name == u"m_iInterType") return rule.m_iInterType;
    if (name == u"m_iSense") return rule.m_iSense;
    if (name == u"m_iSourceType") return rule.m_iSourceType;
    if (name == u"m_iSource") return rule.m_iSource;
    if (name == u"m_iItem") return rule.m_iItem;
    if (name == u"m_iChannel") return rule.m_iChannel;
    noSuchMember(name);
}

qint16& IntegerMember(CBotEvent& rule, const QString& name)
{
    if (name == u"m_iType") return rule.m_iType;
    if (name == u"m_iSource") return rule.m_iSource;
    if (name == u"m_iRukaBot") return rule.m_iRukaBot;
    if (name == u"m_iSelectItem") return rule.m_iSelectItem;
    if (name == u"m_iEmbragueItem") return rule.m_iEmbragueItem;
    if (name == u"m_iItem1") return rule.m_iItem1;
    if (name == u"m_iItem2") return rule.m_iItem2;
    if (name == u"m_iItem3") return rule.m_iItem3;
    if (name == u"m_iItem4") return rule.m_iItem4;
    if (name == u"m_iItem5") return rule.m_iItem5;
    if (name == u"m_iItem6") return rule.m_iItem6;
    noSuchMember(name);
}

qint16& IntegerMember(CLightsEvent&, const QString& name) { noSuchMember(name); }

qint16 AddIntegers(qint16 a, qint16 b)
{
    const int sum = int(a) + int(b);
    if (sum < -32768 || sum > 32767)
        throw ConversionError(QStringLiteral("Overflow"));
    return static_cast<qint16>(sum);
}
