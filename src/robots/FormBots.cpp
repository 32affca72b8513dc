#include "robots/FormBots.h"
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QVBoxLayout>
#include "model/CScene.h"
#include "model/ModuleGlobals.h"
#include "model/SceneLists.h"
#include "robots/FormBotsInteraction.h"
#include "robots/ModuleBotSave.h"
#include "rules/ModuleRuleEdit.h"
#include "support/Controls.h"
#include "support/OnError.h"

FormBots::FormBots(QWidget* owner) : QDialog(owner)
{
    setObjectName(QStringLiteral("FormBots"));
    setWindowTitle(QStringLiteral("RukaBots Interaction"));

    auto* bar = new QMenuBar(this);
    File = named(bar->addMenu(QStringLiteral("&File")), QStringLiteral("File"));
    Save = named(File->addAction(QStringLiteral("&Save")), QStringLiteral("Save"));
    Quit = named(File->addAction(QStringLiteral("&Quit")), QStringLiteral("Quit"));
    GoTo = named(bar->addMenu(QStringLiteral("&Go To")), QStringLiteral("GoTo"));
    ToMovies = named(GoTo->addAction(QStringLiteral("&Movies")), QStringLiteral("ToMovies"));
    ToAudio = named(GoTo->addAction(QStringLiteral("&MIDI")), QStringLiteral("ToAudio"));
    ToOSC = named(GoTo->addAction(QStringLiteral("&OSC")), QStringLiteral("ToOSC"));
    ToArduino = named(GoTo->addAction(QStringLiteral("&Arduino")), QStringLiteral("ToArduino"));
    ToLights = named(GoTo->addAction(QStringLiteral("&Lights")), QStringLiteral("ToLights"));
    ToVideoCapture = named(GoTo->addAction(QStringLiteral("Video &Capture")), QStringLiteral("ToVideoCapture"));

    Label1 = named(new QLabel(QStringLiteral("Scene    Subscene    Name"), this), QStringLiteral("Label1"));
    ListBots = named(new QListWidget(this), QStringLiteral("ListBots"));
    ListBots->setMinimumSize(360, 240);
    CommandClose = named(new QPushButton(QStringLiteral("Close"), this), QStringLiteral("CommandClose"));
    CommandClose->setAutoDefault(false);

    auto* layout = new QVBoxLayout(this);
    layout->setMenuBar(bar);
    layout->addWidget(Label1);
    layout->addWidget(ListBots);
    layout->addWidget(CommandClose, 0, Qt::AlignRight);

    connect(ListBots, &QListWidget::itemClicked, this, &FormBots::ListBots_Click);
    connect(CommandClose, &QPushButton::clicked, this, &FormBots::CommandClose_Click);
    connect(Save, &QAction::triggered, this, &FormBots::Save_Click);
    connect(Quit, &QAction::triggered, this, &FormBots::Quit_Click);
    for (QAction* entry : {ToMovies, ToAudio, ToOSC, ToArduino, ToLights, ToVideoCapture})
        connect(entry, &QAction::triggered, this, &FormBots::GoTo_Click);
    Form_Load();
}

void FormBots::Form_Load() { FillSceneListBox(ListBots); }

void FormBots::ListBots_Click(QListWidgetItem* item)
{
    const int row = ListBots->row(item);
    // The rows are taken as subscenes: scene after scene, m_iNumParts rows each.
    int scene = 0;
    int first = 0;
    for (; scene < gScenes.Count(); ++scene) {
        const int parts = gScenes.Item(scene + 1)->m_iNumParts;
        if (row < first + parts)
            break;
        first += parts;
    }
    gCurrentScene = static_cast<qint16>(scene);
    gCurrentPart = static_cast<qint16>(row - first);
    if (gCurrentScene < gScenes.Count() && gCurrentPart >= 0
        && gCurrentPart < gScenes.Item(gCurrentScene + 1)->m_iNumParts) {
        FormBotsInteraction rules(this);
        rules.exec();
    }
}

void FormBots::CommandClose_Click() { reject(); }

void FormBots::Save_Click() { SaveFromBotForm(this); }

// Quit, as in the dialog of one robot rule, clears the accepted flag.
void FormBots::Quit_Click()
{
    gRuleAccepted = false;
    reject();
}

void FormBots::GoTo_Click() { reject(); }
