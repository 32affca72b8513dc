#pragma once
// A scene of the performance: name, remarks, row colour, Flash movies and subscenes.
#include <memory>
#include <QString>
#include <QtGlobal>
#include "model/CPart.h"
#include "support/CheckedArray.h"
#include "support/Collection.h"

class CScene {
public:
    qint16 m_iID = 0;          // number of the scene from 0; equals its position - 1 after a refill of the list
    QString m_strName;
    QString m_strRemarks;
    qint16 m_iNumParts = 0;    // must agree with PartList
    qint16 m_iColor = 0;       // colour code of its row (SceneColors.h)
    Collection<CPart> PartList;
    CheckedArray<QString, 0, 15> m_strMovie;   // Flash movie of player i in this scene

    // Gives the scene a new subscene list with its one subscene 0.
    void InitPartList();
    // Insert before a position from 1 to Count, append at Count + 1, otherwise do nothing.
    void AddPart(std::shared_ptr<CPart> part, int position);
    // Remove at a position from 1 to Count, otherwise do nothing.
    void RemovePart(int position);

    // "002  INTRO": m_iID as "000", two blanks, the name.
    QString BuildListItem() const;
    // 14 blanks, the subscene's m_iID as "00", 13 blanks, its name.
    QString BuildPartListItem(int position) const;
};

// The scenes of the performance in performance order.
extern Collection<CScene> gScenes;
