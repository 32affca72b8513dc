#include "check/CFinding.h"
#include <QStringList>

QString SeverityText(Severity severity)
{
    switch (severity) {
    case Severity::Breaks: return QStringLiteral("Will break the show");
    case Severity::Lost: return QStringLiteral("Will be lost");
    case Severity::Look: break;
    }
    return QStringLiteral("Worth a look");
}

QString PlaceText(const CFinding& finding)
{
    QStringList parts;
    if (finding.m_bGlobal) {
        parts << QStringLiteral("Global rule %1").arg(finding.m_iRule);
    } else {
        if (finding.m_iScene >= 0)
            parts << QStringLiteral("Scene %1").arg(finding.m_iScene);
        if (finding.m_iPart >= 0)
            parts << QStringLiteral("subscene %1").arg(finding.m_iPart);
        if (finding.m_iRule > 0)
            parts << QStringLiteral("rule %1").arg(finding.m_iRule);
    }
    if (!finding.m_strDevice.isEmpty())
        parts << finding.m_strDevice;
    if (parts.isEmpty())
        return QStringLiteral("Performance");
    return parts.join(QStringLiteral(", "));
}

QString FindingLine(const CFinding& finding)
{
    return SeverityText(finding.m_severity) + QStringLiteral(" | ") + PlaceText(finding) + QStringLiteral(" | ")
        + finding.m_strText;
}
