#pragma once
// "RukaBots Interaction": the list of scenes, from which the robot rules of a
// subscene are opened.
#include <QDialog>

class QAction;
class QLabel;
class QListWidget;
class QListWidgetItem;
class QMenu;
class QPushButton;

class FormBots : public QDialog {
    Q_OBJECT
public:
    explicit FormBots(QWidget* owner = nullptr);

    QMenu* File;
    QAction* Save;
    QAction* Quit;
    QMenu* GoTo;
    QAction* ToMovies;
    QAction* ToAudio;
    QAction* ToOSC;
    QAction* ToArduino;
    QAction* ToLights;
    QAction* ToVideoCapture;

    QLabel* Label1;
    QListWidget* ListBots;
    QPushButton* CommandClose;

    void Form_Load();
    // Finds scene and subscene of the row by adding up the subscenes of the
    // scenes before it, and opens their robot rules when the subscene exists.
    void ListBots_Click(QListWidgetItem* item);
    void CommandClose_Click();
    void Save_Click();
    void Quit_Click();
    // Every Go To entry unloads the form.
    void GoTo_Click();
};
