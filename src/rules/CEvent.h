#pragma once
// A rule: when a source does something, perform these actions. A new record is
// all zero, False and empty, and has no action collection until one is given.
#include <memory>
#include <QString>
#include <QtGlobal>
#include "rules/CAction.h"
#include "support/Collection.h"

class CEvent {
public:
    qint16 m_iInterType = 0;   // interaction type 0 to 3
    qint16 m_iSense = 0;       // 0 Up, 1 Down, 2 Any
    qint16 m_iSourceType = 0;  // source type number, 0 to 10
    qint16 m_iSource = 0;      // device, 0-based; for Automatic the moment
    qint16 m_iItem = 0;        // what of that device; -1 when none
    QString m_strVariable;     // variable, OSC address or Flash variable of the source
    QString m_strVal1;
    QString m_strVal2;
    qint16 m_iChannel = 0;     // MIDI channel as a list position, -1 when none
    QString m_strMin;
    QString m_strMax;
    bool m_bClip = false;
    bool m_bEnabled = false;
    QString m_strRemarks;
    QString m_strGroup;        // the rule's label
    std::shared_ptr<Collection<CAction>> m_MsgOut;   // the actions in order; null until set
    QString m_strEvent;        // description for people, made when the rule is accepted
};

// The deep copy: every field of `source` is set on `target`, which gets a new
// action collection holding a new copy of each action, in list order. The two
// records share no action objects afterwards.
inline void CopyEvent(CEvent& target, const CEvent& source)
{
    target.m_iInterType = source.m_iInterType;
    target.m_iSense = source.m_iSense;
    target.m_iSourceType = source.m_iSourceType;
    target.m_iSource = source.m_iSource;
    target.m_iItem = source.m_iItem;
    target.m_strVariable = source.m_strVariable;
    target.m_strVal1 = source.m_strVal1;
    target.m_strVal2 = source.m_strVal2;
    target.m_iChannel = source.m_iChannel;
    target.m_strMin = source.m_strMin;
    target.m_strMax = source.m_strMax;
    target.m_bClip = source.m_bClip;
    target.m_bEnabled = source.m_bEnabled;
    target.m_strRemarks = source.m_strRemarks;
    target.m_strGroup = source.m_strGroup;
    target.m_strEvent = source.m_strEvent;
    auto actions = std::make_shared<Collection<CAction>>();
    if (source.m_MsgOut)
        for (const auto& action : *source.m_MsgOut)
            actions->Add(std::make_shared<CAction>(*action));
    target.m_MsgOut = actions;
}
