#include "mainwindow/FormCheck.h"
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>
#include "support/Controls.h"

namespace {

constexpr int kFindingRole = Qt::UserRole;

// Sorts by severity on the first column, by number-aware text on the others,
// so that "rule 10" comes after "rule 9".
class FindingItem : public QTreeWidgetItem {
public:
    using QTreeWidgetItem::QTreeWidgetItem;
    bool operator<(const QTreeWidgetItem& other) const override
    {
        const int column = treeWidget() ? treeWidget()->sortColumn() : 0;
        if (column == 0)
            return data(0, kFindingRole + 1).toInt() < other.data(0, kFindingRole + 1).toInt();
        return QString::localeAwareCompare(text(column), other.text(column)) < 0;
    }
};

} // namespace

FormCheck::FormCheck(std::vector<CFinding> findings, QWidget* owner) : QDialog(owner), m_findings(std::move(findings))
{
    setObjectName(QStringLiteral("FormCheck"));
    setWindowTitle(QStringLiteral("Check Performance"));
    LabelSummary = named(new QLabel(this), QStringLiteral("LabelSummary"));
    LabelSummary->setWordWrap(true);
    ListFindings = named(new QTreeWidget(this), QStringLiteral("ListFindings"));
    ListFindings->setColumnCount(3);
    ListFindings->setHeaderLabels({QStringLiteral("Severity"), QStringLiteral("Place"), QStringLiteral("Finding")});
    ListFindings->setRootIsDecorated(false);
    ListFindings->setWordWrap(true);
    ListFindings->setAlternatingRowColors(true);
    ListFindings->setSelectionMode(QAbstractItemView::SingleSelection);
    ListFindings->header()->setStretchLastSection(true);
    LabelFinding = named(new QLabel(this), QStringLiteral("LabelFinding"));
    LabelFinding->setWordWrap(true);
    LabelFinding->setTextInteractionFlags(Qt::TextSelectableByMouse);
    LabelFinding->setMinimumHeight(48);
    LabelFinding->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    CommandClose = named(new QPushButton(QStringLiteral("Close"), this), QStringLiteral("CommandClose"));
    CommandClose->setDefault(true);

    for (size_t i = 0; i < m_findings.size(); ++i) {
        const CFinding& f = m_findings[i];
        auto* item = new FindingItem(ListFindings, {SeverityText(f.m_severity), PlaceText(f), f.m_strText});
        item->setData(0, kFindingRole, static_cast<int>(i));
        item->setData(0, kFindingRole + 1, static_cast<int>(f.m_severity) * 100000 + static_cast<int>(i));
        item->setToolTip(2, f.m_strText);
    }
    ListFindings->setSortingEnabled(true);
    ListFindings->sortByColumn(0, Qt::AscendingOrder);
    ListFindings->setColumnWidth(0, 140);
    ListFindings->setColumnWidth(1, 220);

    if (m_findings.empty())
        LabelSummary->setText(QStringLiteral("Nothing was found: the performance reads back as it is written, and "
                                             "every rule names devices that are configured."));
    else
        LabelSummary->setText(QStringLiteral("%1 finding%2. Double-click a finding to show its scene and rule.")
                                  .arg(m_findings.size())
                                  .arg(m_findings.size() == 1 ? QString() : QStringLiteral("s")));

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(LabelSummary);
    layout->addWidget(ListFindings, 1);
    layout->addWidget(LabelFinding);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(CommandClose);
    layout->addLayout(buttons);
    resize(900, 420);

    if (QTreeWidgetItem* first = ListFindings->topLevelItem(0)) {
        ListFindings->setCurrentItem(first);
        ListFindings_Click(first);
    }

    connect(ListFindings, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem* item, int) { ListFindings_Click(item); });
    connect(ListFindings, &QTreeWidget::itemDoubleClicked, this,
            [this](QTreeWidgetItem* item, int) { ListFindings_DblClick(item); });
    connect(CommandClose, &QPushButton::clicked, this, &FormCheck::CommandClose_Click);
}

const CFinding& FormCheck::FindingOf(const QTreeWidgetItem* item) const
{
    return m_findings.at(static_cast<size_t>(item->data(0, kFindingRole).toInt()));
}

void FormCheck::ListFindings_Click(QTreeWidgetItem* item)
{
    if (item)
        LabelFinding->setText(PlaceText(FindingOf(item)) + QStringLiteral(": ") + FindingOf(item).m_strText);
}

void FormCheck::ListFindings_DblClick(QTreeWidgetItem* item)
{
    if (item && ShowPlace)
        ShowPlace(FindingOf(item));
}

void FormCheck::CommandClose_Click() { accept(); }
