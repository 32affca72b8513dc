#include "model/CScene.h"
#include "support/NumberFormat.h"

Collection<CScene> gScenes;

void CScene::InitPartList()
{
    PartList = Collection<CPart>();
    auto part = std::make_shared<CPart>();
    part->m_iID = 0;
    part->m_iScene = m_iID;
    part->InitEventList();
    PartList.Add(part);
    m_iNumParts = 1;
}

void CScene::AddPart(std::shared_ptr<CPart> part, int position)
{
    if (position >= 1 && position <= PartList.Count())
        PartList.Add(std::move(part), position);
    else if (position == PartList.Count() + 1)
        PartList.Add(std::move(part));
    else
        return;
    ++m_iNumParts;
}

void CScene::RemovePart(int position)
{
    if (position >= 1 && position <= PartList.Count()) {
        PartList.Remove(position);
        --m_iNumParts;
    }
}

QString CScene::BuildListItem() const
{
    return Format(m_iID, QStringLiteral("000")) + QStringLiteral("  ") + m_strName;
}

QString CScene::BuildPartListItem(int position) const
{
    const auto& part = PartList.Item(position);
    return QString(14, u' ') + Format(part->m_iID, QStringLiteral("00")) + QString(13, u' ') + part->m_strName;
}
