#pragma once
// "Check Performance": the findings of the check of the performance, as a
// sortable list of severity, place and sentence. A double click on a finding
// shows its scene and rule in the main window.
#include <functional>
#include <vector>
#include <QDialog>
#include "check/CFinding.h"

class QLabel;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

class FormCheck : public QDialog {
    Q_OBJECT
public:
    explicit FormCheck(std::vector<CFinding> findings, QWidget* owner = nullptr);

    QLabel* LabelSummary;        // how many findings, or that nothing was found
    QTreeWidget* ListFindings;   // Severity, Place, Finding
    QLabel* LabelFinding;        // the whole sentence of the selected finding
    QPushButton* CommandClose;

    // Called by a double click with the finding of the row.
    std::function<void(const CFinding&)> ShowPlace;

    const std::vector<CFinding>& Findings() const { return m_findings; }
    // The finding a row of ListFindings stands for.
    const CFinding& FindingOf(const QTreeWidgetItem* item) const;

    // Shows the whole sentence of the finding in LabelFinding.
    void ListFindings_Click(QTreeWidgetItem* item);
    void ListFindings_DblClick(QTreeWidgetItem* item);
    void CommandClose_Click();

private:
    std::vector<CFinding> m_findings;
};
