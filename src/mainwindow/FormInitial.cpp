#include "mainwindow/FormInitial.h"
#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QScreen>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QStandardPaths>
#include <QMouseEvent>
#include <QThread>
#include <QTimer>
#include <QTreeWidget>
#include "files/ModuleSaveOpen.h"
#include "mainwindow/FormComponents.h"
#include "mainwindow/FormEntry.h"
#include "mainwindow/FormName.h"
#include "model/CArduinoData.h"
#include "model/CExoData.h"
#include "model/CMainConfig.h"
#include "model/CScene.h"
#include "model/ModuleGlobals.h"
#include "model/SceneLists.h"
#include "rules/ModuleEvents.h"
#include "rules/ModuleGlobalEvents.h"
#include "rules/ModuleRuleDisplay.h"
#include "support/Controls.h"
#include "support/Convert.h"
#include "support/ModuleGUI.h"
#include "support/NumberFormat.h"
#include "support/Platform.h"
#include "support/RuntimeError.h"

bool bPanelLocked = false;

namespace {

// A filter row: checked boxes, hidden until the rule view places and captions them.
QList<QCheckBox*> filterChecks(QWidget* area, const QString& name, int count)
{
    QList<QCheckBox*> boxes;
    for (int i = 0; i < count; ++i) {
        auto* box = named(new QCheckBox(area), arrayName(name, i));
        box->setChecked(true);
        box->hide();
        boxes << box;
    }
    return boxes;
}

} // namespace

QString AutoSaveRoot()
{
    const QString appPath = AppPath();
    if (QFileInfo(appPath).isWritable())
        return appPath;
    const QString data = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    QDir().mkpath(data);
    return QDir::toNativeSeparators(data);
}

FormInitial::FormInitial(QWidget* parent) : QMainWindow(parent)
{
    setObjectName(QStringLiteral("FormInitial"));
    setWindowTitle(QStringLiteral("QEL Setup v4.0"));
    auto* area = new QWidget(this);
    area->setObjectName(QStringLiteral("FormArea"));
    setCentralWidget(area);

    buildMenus();
    TextName = named(new QLabel(QStringLiteral("QEL New"), area), QStringLiteral("TextName"));
    QFont big = TextName->font();
    big.setPointSize(16);
    big.setBold(true);
    TextName->setFont(big);
    CommandConn = named(new QPushButton(QStringLiteral("Rules"), area), QStringLiteral("CommandConn"));
    CommandConn->setToolTip(QStringLiteral("Rules Configuration"));
    CommandRules = named(new QPushButton(QStringLiteral("Devices"), area), QStringLiteral("CommandRules"));
    CommandRules->setToolTip(QStringLiteral("Devices Configuration"));

    buildRuleView(area);
    buildDevicePanel(area);
    connectHandlers();
    resize(Twips(14400), Twips(10775));
    layoutControls();
}

void FormInitial::buildMenus()
{
    QMenuBar* bar = menuBar();
    auto menu = [&](QMenu* parentMenu, const QString& name, const QString& caption) {
        QMenu* m = parentMenu ? parentMenu->addMenu(caption) : bar->addMenu(caption);
        m->setObjectName(name);
        return m;
    };
    auto entry = [&](QMenu* m, const QString& name, const QString& caption) {
        QAction* a = m->addAction(caption);
        a->setObjectName(name);
        return a;
    };
    File = menu(nullptr, QStringLiteral("File"), QStringLiteral("&File"));
    New = entry(File, QStringLiteral("New"), QStringLiteral("&New"));
    Open = entry(File, QStringLiteral("Open"), QStringLiteral("&Open"));
    Save = entry(File, QStringLiteral("Save"), QStringLiteral("&Save"));
    SaveAs = entry(File, QStringLiteral("SaveAs"), QStringLiteral("Save &As"));
    Print = entry(File, QStringLiteral("Print"), QStringLiteral("&Print"));
    CheckPerformance = entry(File, QStringLiteral("CheckPerformance"), QStringLiteral("&Check Performance..."));
    File->addSeparator();
    Quit = entry(File, QStringLiteral("Quit"), QStringLiteral("&Quit"));
    Edit = menu(nullptr, QStringLiteral("Edit"), QStringLiteral("&Edit"));
    Cut = entry(Edit, QStringLiteral("Cut"), QStringLiteral("Cut"));
    Copy = entry(Edit, QStringLiteral("Copy"), QStringLiteral("Copy"));
    Paste = entry(Edit, QStringLiteral("Paste"), QStringLiteral("Paste"));
    Setup = menu(nullptr, QStringLiteral("Setup"), QStringLiteral("&Setup"));
    TheName = entry(Setup, QStringLiteral("TheName"), QStringLiteral("&Name"));
    Components = entry(Setup, QStringLiteral("Components"), QStringLiteral("&Components..."));
    ScenesParts = menu(Setup, QStringLiteral("ScenesParts"), QStringLiteral("&Scenes"));
    AddScene = entry(ScenesParts, QStringLiteral("AddScene"), QStringLiteral("&Add"));
    EditScene = entry(ScenesParts, QStringLiteral("EditScene"), QStringLiteral("&Edit"));
    Remove = entry(ScenesParts, QStringLiteral("Remove"), QStringLiteral("&Remove"));
    DigitalIO = entry(Setup, QStringLiteral("DigitalIO"), QStringLiteral("&Digital IO Cards..."));
    Help = menu(nullptr, QStringLiteral("Help"), QStringLiteral("&Help"));
    About = entry(Help, QStringLiteral("About"), QStringLiteral("&About QEL Setup v.4.0"));

    New->setShortcut(QKeySequence::New);
    Open->setShortcut(QKeySequence::Open);
    Save->setShortcut(QKeySequence::Save);
    Quit->setShortcut(QKeySequence::Quit);
    // Commands still to come are shown but not offered.
    for (QAction* a : {Cut, Copy, Paste})
        a->setEnabled(false);
}

void FormInitial::buildRuleView(QWidget* area)
{
    ListGlobalRules = named(new QListWidget(area), QStringLiteral("ListGlobalRules"));
    ListMain2 = named(new QTreeWidget(area), QStringLiteral("ListMain2"));
    ListMain2->setColumnCount(1);
    ListMain2->setHeaderLabels({QStringLiteral("Scenes")});
    ListMain2->setRootIsDecorated(false);
    ListMain2->setSelectionMode(QAbstractItemView::ExtendedSelection);
    // A mid grey on which the default light grey, black and every palette colour read.
    ListMain2->setStyleSheet(QStringLiteral("QTreeWidget#ListMain2 { background: #8C8C8C; }"));

    CommandAddScene = named(new QPushButton(QStringLiteral("Add Scene"), area), QStringLiteral("CommandAddScene"));
    CommandEdit = named(new QPushButton(QStringLiteral("Edit Scene/Subscene"), area), QStringLiteral("CommandEdit"));
    CommandDelete = named(new QPushButton(QStringLiteral("Remove Scene/Subscene"), area), QStringLiteral("CommandDelete"));
    CommandShowConfig = named(new QPushButton(QStringLiteral("Components && Ports"), area), QStringLiteral("CommandShowConfig"));
    CommandUp = named(new QPushButton(QStringLiteral("\u25B2"), area), QStringLiteral("CommandUp"));
    CommandDown = named(new QPushButton(QStringLiteral("\u25BC"), area), QStringLiteral("CommandDown"));
    static const char* kColors[8] = {"#000000", "#0000FF", "#00FF00", "#00FFFF", "#FF0000", "#FF00FF", "#FFFF00", "#DDDDDD"};
    for (int i = 0; i < 8; ++i) {
        auto* b = named(new QPushButton(area), arrayName(QStringLiteral("CommandColor"), i));
        b->setStyleSheet(QStringLiteral("background: %1;").arg(QLatin1String(kColors[i])));
        CommandColor << b;
    }
    CommandBots = named(new QPushButton(QStringLiteral("RukaBots Interaction"), area), QStringLiteral("CommandBots"));

    Label5 = named(new QLabel(QStringLiteral("Scene"), area), QStringLiteral("Label5"));
    LabelNumScene = named(new QLabel(area), QStringLiteral("LabelNumScene"));
    LabelName = named(new QLabel(area), QStringLiteral("LabelName"));
    Label1 = named(new QLabel(QStringLiteral("Sources"), area), QStringLiteral("Label1"));
    CheckSource = filterChecks(area, QStringLiteral("CheckSource"), 9);
    Label3 = named(new QLabel(QStringLiteral("Targets"), area), QStringLiteral("Label3"));
    CheckTarget = filterChecks(area, QStringLiteral("CheckTarget"), 6);
    Label15 = named(new QLabel(QStringLiteral("Search label"), area), QStringLiteral("Label15"));
    TextSearched = named(new QComboBox(area), QStringLiteral("TextSearched"));
    TextSearched->setEditable(true);
    TextSearched->setInsertPolicy(QComboBox::NoInsert);
    CommandAdd = named(new QPushButton(QStringLiteral("Add rule"), area), QStringLiteral("CommandAdd"));
    const QStringList filters = {QStringLiteral("QEL Interaction"), QStringLiteral("MIDI Interaction"),
                                 QStringLiteral("Movies Interaction"), QStringLiteral("Arduino Interaction"),
                                 QStringLiteral("OSC Interaction")};
    for (int i = 0; i < filters.size(); ++i) {
        auto* b = named(new QPushButton(filters[i], area), arrayName(QStringLiteral("CommandTargetsFilt"), i));
        CommandTargetsFilt << b;
    }
    ListEvents = named(new QTreeWidget(area), QStringLiteral("ListEvents"));
    SetupRuleListColumns(ListEvents);
    ListEvents->setRootIsDecorated(false);
    ListEvents->header()->setSectionsClickable(true);
    ListEvents->setSelectionMode(QAbstractItemView::ExtendedSelection);
    const int widths[7] = {40, 60, 60, 50, 90, 140, 300};
    for (int c = 0; c < 7; ++c)
        ListEvents->setColumnWidth(c, widths[c]);
}

void FormInitial::buildDevicePanel(QWidget* area)
{
    struct Row {
        const char* label;
        const char* labelName;
        const char* combo;
        int max;
        const char* button;
        const char* caption;
    };
    static const Row kRows[8] = {
        {"Number of Exoskeletons:", "Label8", "ComboNExos", 2, "ExoskeletonsCalibration", "Exos Config."},
        {"Number of Joysticks:", "Label9", "ComboNTotems", 4, "CommandItems", "Joysticks Config."},
        {"Number of OSC connections:", "Label10", "ComboNOSCs", 16, "CommandOSC", "OSC Config."},
        {"Number of Arduinos:", "Label11", "ComboNArduinos", 16, "ArduinoConfig", "Arduino Config."},
        {"Number of QEL Display Managers:", "Label12", "ComboNScreens", 8, "CommandScreen", "QDM Config."},
        {"Number of Flash players:", "Label13", "ComboNFlash", 16, "CommandFlash", "Flash Config."},
        {"Number of MIDI devices:", "Label14", "ComboNMIDI", 8, "CommandPorts", "MIDI Config."},
        {"Number of video capture devices:", "Label16", "ComboNVideoCaps", 4, nullptr, nullptr},
    };
    for (const Row& row : kRows) {
        DeviceLabels << named(new QLabel(QString::fromLatin1(row.label), area), QString::fromLatin1(row.labelName));
        auto* combo = named(new QComboBox(area), QString::fromLatin1(row.combo));
        for (int n = 0; n <= row.max; ++n)
            combo->addItem(QString::number(n));
        m_countCombos << combo;
        if (row.button)
            m_dialogButtons << named(new QPushButton(QString::fromLatin1(row.caption), area), QString::fromLatin1(row.button));
    }
    ComboNExos = m_countCombos[0];
    ComboNTotems = m_countCombos[1];
    ComboNOSCs = m_countCombos[2];
    ComboNArduinos = m_countCombos[3];
    ComboNScreens = m_countCombos[4];
    ComboNFlash = m_countCombos[5];
    ComboNMIDI = m_countCombos[6];
    ComboNVideoCaps = m_countCombos[7];
    ExoskeletonsCalibration = m_dialogButtons[0];
    CommandItems = m_dialogButtons[1];
    CommandOSC = m_dialogButtons[2];
    ArduinoConfig = m_dialogButtons[3];
    CommandScreen = m_dialogButtons[4];
    CommandFlash = m_dialogButtons[5];
    CommandPorts = m_dialogButtons[6];
    LabelEvPerSec = named(new QLabel(QStringLiteral("Value Events per second:"), area), QStringLiteral("LabelEvPerSec"));
    txtEvPerSec = named(new QLineEdit(area), QStringLiteral("txtEvPerSec"));
    CommandTalpor = named(new QPushButton(QStringLiteral("Talpor Config."), area), QStringLiteral("CommandTalpor"));
    CommandUnlock = named(new QPushButton(QStringLiteral("Lock panel"), area), QStringLiteral("CommandUnlock"));
    CommandUnlock->setToolTip(QStringLiteral("The panel is free: click to lock it"));
    CommandLock = named(new QPushButton(QStringLiteral("Unlock panel"), area), QStringLiteral("CommandLock"));
    CommandLock->setToolTip(QStringLiteral("The panel is locked: click to free it"));
    CommandLock->hide();
}

void FormInitial::connectHandlers()
{
    connect(New, &QAction::triggered, this, &FormInitial::New_Click);
    connect(Open, &QAction::triggered, this, &FormInitial::Open_Click);
    connect(Save, &QAction::triggered, this, &FormInitial::Save_Click);
    connect(SaveAs, &QAction::triggered, this, &FormInitial::SaveAs_Click);
    connect(Quit, &QAction::triggered, this, &FormInitial::Quit_Click);
    connect(TheName, &QAction::triggered, this, &FormInitial::TheName_Click);
    connect(Components, &QAction::triggered, this, &FormInitial::Components_Click);
    connect(About, &QAction::triggered, this, &FormInitial::About_Click);
    connect(CommandConn, &QPushButton::clicked, this, &FormInitial::CommandConn_Click);
    connect(CommandRules, &QPushButton::clicked, this, &FormInitial::CommandRules_Click);
    connect(CommandUnlock, &QPushButton::clicked, this, &FormInitial::CommandUnlock_Click);
    connect(CommandLock, &QPushButton::clicked, this, &FormInitial::CommandLock_Click);
    connect(txtEvPerSec, &QLineEdit::textEdited, this, &FormInitial::txtEvPerSec_Change);
    connect(ListMain2, &QTreeWidget::itemClicked, this, &FormInitial::ListMain2_Click);
    connect(AddScene, &QAction::triggered, this, &FormInitial::AddScene_Click);
    connect(EditScene, &QAction::triggered, this, &FormInitial::EditScene_Click);
    connect(Remove, &QAction::triggered, this, &FormInitial::Remove_Click);
    connect(CommandAddScene, &QPushButton::clicked, this, &FormInitial::CommandAddScene_Click);
    connect(CommandEdit, &QPushButton::clicked, this, &FormInitial::CommandEdit_Click);
    connect(CommandDelete, &QPushButton::clicked, this, &FormInitial::CommandDelete_Click);
    connect(CommandUp, &QPushButton::clicked, this, &FormInitial::CommandUp_Click);
    connect(CommandDown, &QPushButton::clicked, this, &FormInitial::CommandDown_Click);
    for (int i = 0; i < CommandColor.size(); ++i)
        connect(CommandColor[i], &QPushButton::clicked, this, [this, i] { CommandColor_Click(i); });
    connect(ListEvents->header(), &QHeaderView::sectionClicked, this, &FormInitial::ListEvents_ColumnClick);
    ListMain2->viewport()->installEventFilter(this);
    ListEvents->viewport()->installEventFilter(this);
    // A failure of printing is not trapped: it ends the program.
    connect(Print, &QAction::triggered, this, [this] {
        try {
            Print_Click();
        } catch (const RuntimeError& error) {
            EndWithRunTimeError(error);
        }
    });
    connect(ListGlobalRules, &QListWidget::itemClicked, this, &FormInitial::ListGlobalRules_Click);
    connect(TextSearched, &QComboBox::activated, this, &FormInitial::TextSearched_Change);
    connect(TextSearched->lineEdit(), &QLineEdit::textEdited, this, &FormInitial::TextSearched_Change);

    connect(ComboNExos, &QComboBox::activated, this, &FormInitial::ComboNExos_Click);
    connect(ComboNTotems, &QComboBox::activated, this, &FormInitial::ComboNTotems_Click);
    connect(ComboNOSCs, &QComboBox::activated, this, &FormInitial::ComboNOSCs_Click);
    connect(ComboNArduinos, &QComboBox::activated, this, &FormInitial::ComboNArduinos_Click);
    connect(ComboNScreens, &QComboBox::activated, this, &FormInitial::ComboNScreens_Click);
    connect(ComboNFlash, &QComboBox::activated, this, &FormInitial::ComboNFlash_Click);
    connect(ComboNMIDI, &QComboBox::activated, this, &FormInitial::ComboNMIDI_Click);
    connect(ComboNVideoCaps, &QComboBox::activated, this, &FormInitial::ComboNVideoCaps_Click);
    connect(ExoskeletonsCalibration, &QPushButton::clicked, this, &FormInitial::ExoskeletonsCalibration_Click);
    connect(ArduinoConfig, &QPushButton::clicked, this, &FormInitial::ArduinoConfig_Click);
    connect(CommandOSC, &QPushButton::clicked, this, &FormInitial::CommandOSC_Click);
    connect(CommandFlash, &QPushButton::clicked, this, &FormInitial::CommandFlash_Click);
    connect(CommandPorts, &QPushButton::clicked, this, &FormInitial::CommandPorts_Click);
    connect(CommandScreen, &QPushButton::clicked, this, &FormInitial::CommandScreen_Click);
    connect(CommandItems, &QPushButton::clicked, this, &FormInitial::CommandItems_Click);
    connect(CommandTalpor, &QPushButton::clicked, this, &FormInitial::CommandTalpor_Click);
    connect(CommandShowConfig, &QPushButton::clicked, this, &FormInitial::CommandShowConfig_Click);
    connect(CommandBots, &QPushButton::clicked, this, &FormInitial::CommandBots_Click);
    for (int i = 0; i < CheckSource.size(); ++i)
        connect(CheckSource[i], &QCheckBox::clicked, this, [this, i] { CheckSource_Click(i); });
    for (int i = 0; i < CheckTarget.size(); ++i)
        connect(CheckTarget[i], &QCheckBox::clicked, this, [this, i] { CheckTarget_Click(i); });
    connect(DigitalIO, &QAction::triggered, this, &FormInitial::DigitalIO_Click);
    connect(CheckPerformance, &QAction::triggered, this, &FormInitial::CheckPerformance_Click);

    // Rule clipboard and ordering.
    connect(CommandAdd, &QPushButton::clicked, this, &FormInitial::CommandAdd_Click);
    connect(ListEvents, &QTreeWidget::itemDoubleClicked, this, &FormInitial::ListEvents_DblClick);
    connect(Copy, &QAction::triggered, this, &FormInitial::Copy_Click);
    connect(Cut, &QAction::triggered, this, &FormInitial::Cut_Click);
    connect(Paste, &QAction::triggered, this, &FormInitial::Paste_Click);
    for (QAction* a : {Cut, Copy, Paste})
        a->setEnabled(true);
}

// ---------------------------------------------------------------- start

void FormInitial::Form_Load()
{
    CommandRules_Click();
    gMainConfig.m_bUpdate = false;
    const qint64 start = GetTickCount();
    auto* splash = new FormEntry(this);
    splash->adjustSize();
    if (const QScreen* screen = QApplication::primaryScreen())
        splash->move(screen->availableGeometry().center() - splash->rect().center());
    splash->show();
    gGlobalRuleView = false;
    ListGlobalRules->clear();
    ListGlobalRules->addItem(QStringLiteral("GLOBAL RULES"));
    while (GetTickCount() - start < 1500) {
        DoEvents();
        QThread::msleep(5);
    }
    for (int i = 0; i <= 10; ++i) {
        gSourceFilter(i) = true;
        gTargetFilter(i) = true;
    }
    New_Click();
    splash->close();
    delete splash;
    InitExoSensorLabels();
    InitExoTypeNames();
    resize(Twips(14400), Twips(10775));
    CommandUp->hide();
    CommandDown->hide();
}

// The mouse over the two lists: the pointer's place, the clicks and the double click.
bool FormInitial::eventFilter(QObject* watched, QEvent* event)
{
    const bool scenes = watched == ListMain2->viewport();
    const bool rules = watched == ListEvents->viewport();
    if (!scenes && !rules)
        return QMainWindow::eventFilter(watched, event);
    const QEvent::Type type = event->type();
    if (type == QEvent::MouseButtonPress || type == QEvent::MouseButtonRelease || type == QEvent::MouseButtonDblClick) {
        const QPointF at = static_cast<QMouseEvent*>(event)->position();
        const auto x = static_cast<float>(at.x());
        const auto y = static_cast<float>(at.y());
        if (scenes && type == QEvent::MouseButtonPress)
            ListMain2_MouseDown(x, y);
        else if (scenes && type == QEvent::MouseButtonRelease)
            ListMain2_MouseUp(x, y);
        else if (scenes && type == QEvent::MouseButtonDblClick) {
            // The second press of a double click comes as the double click itself.
            ListMain2_MouseDown(x, y);
            ListMain2_DblClick();
        }
        else if (rules && type == QEvent::MouseButtonRelease) {
            ListEvents_MouseUp(x, y);
            ListEvents_Click();
        }
    }
    return QMainWindow::eventFilter(watched, event);
}

void FormInitial::resizeEvent(QResizeEvent* event)
{
    QMainWindow::resizeEvent(event);
    Form_Resize();
}

void FormInitial::Form_Resize()
{
    const QWidget* area = centralWidget();
    if (area->width() * 15 < 11300 || area->height() * 15 < 5775)
        return;
    layoutControls();
}

void FormInitial::layoutControls()
{
    const int w = centralWidget()->width();
    const int h = centralWidget()->height();
    const int right = Twips(300), belowRules = Twips(900), belowScenes = Twips(1500);
    const int left2 = 290;

    TextName->setGeometry(20, 8, w - 200, 32);
    CommandConn->setGeometry(w - right - 150, 10, 70, 30);
    CommandRules->setGeometry(w - right - 75, 10, 75, 30);

    // Rule view: the scene list on the left, the rules on the right.
    ListGlobalRules->setGeometry(20, 50, 220, 26);
    ListMain2->setGeometry(20, 80, 220, h - 80 - belowScenes);
    const int scenesBottom = h - belowScenes;
    CommandUp->setGeometry(245, 80, 30, 30);
    CommandDown->setGeometry(245, 115, 30, 30);
    for (int i = 0; i < CommandColor.size(); ++i)
        CommandColor[i]->setGeometry(20 + i * 27, scenesBottom + 6, 24, 20);
    CommandAddScene->setGeometry(20, scenesBottom + 32, 70, 26);
    CommandEdit->setGeometry(92, scenesBottom + 32, 150, 26);
    CommandDelete->setGeometry(20, scenesBottom + 62, 222, 26);
    // Below the rule list: two rows of buttons in its margin.
    CommandShowConfig->setGeometry(left2, h - belowRules + 4, 160, 26);
    CommandBots->setGeometry(left2 + 170, h - belowRules + 4, 160, 26);

    Label5->setGeometry(left2, 50, 130, 22);
    LabelNumScene->setGeometry(left2 + 130, 50, 50, 22);
    LabelName->setGeometry(left2 + 185, 50, 300, 22);
    Label1->setGeometry(left2, 76, 60, 22);
    Label3->setGeometry(left2, 100, 60, 22);
    Label15->setGeometry(left2, 126, 90, 24);
    TextSearched->setGeometry(left2 + 90, 126, 200, 24);
    CommandAdd->setGeometry(left2 + 300, 125, 130, 26);
    for (int i = 0; i < CommandTargetsFilt.size(); ++i)
        CommandTargetsFilt[i]->setGeometry(left2 + i * 128, h - belowRules + 32, 126, 26);
    ListEvents->setGeometry(left2, 156, w - left2 - right, h - 156 - belowRules);

    // Device view.
    int y = 100;
    for (int i = 0; i < m_countCombos.size(); ++i, y += 34) {
        DeviceLabels[i]->setGeometry(left2, y, 230, 26);
        m_countCombos[i]->setGeometry(left2 + 235, y, 70, 26);
        if (i < m_dialogButtons.size())
            m_dialogButtons[i]->setGeometry(left2 + 320, y, 140, 26);
    }
    LabelEvPerSec->setGeometry(left2, y, 230, 26);
    txtEvPerSec->setGeometry(left2 + 235, y, 70, 26);
    CommandTalpor->setGeometry(left2 + 320, y, 140, 26);
    CommandUnlock->setGeometry(left2 + 480, 100, 110, 30);
    CommandLock->setGeometry(left2 + 480, 100, 110, 30);
}

// ---------------------------------------------------------------- New

void FormInitial::New_Click()
{
    if (gDirty && AskToSave() == MsgAnswer::Cancel)
        return;
    CMainConfig& cfg = gMainConfig;
    cfg.m_bUpdate = false;
    gConfigFilePath.clear();
    gConfigName.clear();
    gConfigFolder.clear();
    iSelectedRow = -1;
    gCurrentScene = -1;
    gCurrentPart = -1;

    cfg.m_strName = QStringLiteral("QEL New");
    cfg.m_iNExos = 0;
    cfg.m_iNTotems = 0;
    cfg.m_iNOSCs = 0;
    cfg.m_iNArduinos = 0;
    cfg.m_iNQDMs = 0;
    cfg.m_iNMIDIs = 0;
    cfg.m_iNFlash = 0;
    cfg.m_iNVideoCaps = 0;
    cfg.m_iExo1Port = 1;
    cfg.m_iExo2Port = 1;
    cfg.m_iTalporPort = 0;
    for (int i = 0; i <= 7; ++i) {
        cfg.m_iMIDIPort(i) = -1;
        cfg.m_iInMIDIPort(i) = -1;
        cfg.m_iOutMIDIPort(i) = -1;
        cfg.m_strMIDIPortLabel(i).clear();
        cfg.m_strInMIDIPortLabel(i).clear();
        cfg.m_strOutMIDIPortLabel(i).clear();
    }
    cfg.m_iQDMPort = 1111;
    cfg.m_iFlashPort = 1122;
    cfg.m_strScenesFile.clear();
    cfg.m_strMoviesRoot = QStringLiteral("C:\\QEL\\MOVIES\\");
    cfg.m_strScenesFilenames.clear();
    cfg.m_strMovieLoadsFile.clear();
    cfg.m_strMovieEventsFile.clear();
    cfg.m_strRukaBotsFile.clear();
    cfg.m_strTalporFile.clear();
    cfg.m_strVilnaFile.clear();
    cfg.m_iMovieWidth = 800;
    cfg.m_iMovieHeight = 600;
    cfg.m_strLocalIPAddress = LocalIPAddress();
    cfg.m_lBkColor = 0;
    cfg.m_iEventsPerSec = 16;
    gNDigitalIO = 1;
    for (int i = 0; i <= 3; ++i) {
        gDigitalIOCardID(i) = i;
        gDigitalIONIn(i) = 32;
        gDigitalIONOut(i) = 32;
    }
    for (int i = 0; i <= 3; ++i) {
        gTotemAxes(i) = 2;
        gTotemButtons(i) = 5;
    }
    for (int i = 0; i <= 3; ++i)
        cfg.m_iTotemDevice(i) = static_cast<qint16>(i + 1);

    TextName->setText(cfg.m_strName);
    InitExoData();
    InitArduinoData();
    for (int i = 0; i <= 15; ++i) {
        cfg.m_iOSCPort(i) = -1;
        cfg.m_iOSCPortInOut(i) = 0;
        cfg.m_strOSCIP(i) = QStringLiteral("0.0.0.0");
        cfg.m_strOSCPortLabel(i) = QStringLiteral("OSC ") + Format(i + 1, QStringLiteral("#0"));
    }
    for (int i = 0; i <= 7; ++i) {
        const QString n = QString::number(i + 1);
        cfg.m_iNAppPerQDM(i) = 2;
        cfg.m_strDisplayManagerPath(i) = QStringLiteral("\\\\QDM") + n + QStringLiteral("machine\\path\\to\\the\\qdm\\executable\\file\\");
        for (int j = 0; j <= 7; ++j) {
            const QString k = QString::number(j + 1);
            cfg.m_strVideoAppLabel(i, j) = QStringLiteral("QDM ") + n + QStringLiteral(" | Video App Label ") + k;
            cfg.m_strVideoAppWindow(i, j) = QStringLiteral("QDM ") + n + QStringLiteral(" | Video App Window ") + k;
            cfg.m_strVideoAppPath(i, j) = QStringLiteral("c:\\myvideopath");
            cfg.m_bVideoAppLaunch(i, j) = false;
        }
    }
    for (int i = 0; i <= 15; ++i)
        cfg.m_strFlashFolderPath(i) = QStringLiteral("\\\\flashmachine") + QString::number(i + 1) + QStringLiteral("\\flashfolder\\");

    gLastScene = -1;
    gScenes.Clear();
    auto scene = std::make_shared<CScene>();
    scene->m_iID = gCurrentScene;
    scene->m_strName = QStringLiteral("SCENE 1");
    scene->m_strRemarks = QStringLiteral("My first and only scene");
    scene->m_iNumParts = 0;
    for (int i = 0; i < cfg.m_iNFlash; ++i)
        scene->m_strMovie(i).clear();
    scene->InitPartList();
    appendScene(scene);

    FillSceneListView(ListMain2);
    CommandUp->setEnabled(false);
    CommandDown->setEnabled(false);
    CommandUp->hide();
    CommandDown->hide();

    gMaxEventsPerPart = 0;
    gMovieEventCount = 0;
    gDirty = false;
    ClearGlobalEvents();
    ShowDeviceCounts();
    gDirty = false;
    iSelectedRow = 0;

    if (ListMain2->topLevelItemCount() > 0 && !ListMain2->isHidden()) {
        ListMain2->clearSelection();
        ListMain2->topLevelItem(0)->setSelected(true);
        ListMain2_Click();
    }
    // The labels and the rule list for the search text; the selection of a
    // scene is left to the handlers that make one.
    FillGroups(TextSearched);
    gCurrentGroup = TextSearched->currentText();
    RefreshRuleView();
}

// ---------------------------------------------------------------- Open, Save, Save As

namespace {
const QString kConfigFilter = QStringLiteral("Configuration Files (*.qel)|*.qel");
const QString kConfigExtension = QStringLiteral(".qel");
}

void FormInitial::Save_Click()
{
    if (!gConfigFilePath.isEmpty())
        SaveConfiguration(gConfigFilePath);
    else
        SaveAs_Click();
}

void FormInitial::SaveAs_Click()
{
    const QString path = ShowSaveDialog(this, QStringLiteral("TheCommonDialog"), kConfigFilter, kConfigExtension);
    if (path.isEmpty())
        return;
    DeriveConfigPaths(path);
    SaveConfiguration(gConfigFilePath);
}

void FormInitial::Open_Click()
{
    if (gDirty && AskToSave() == MsgAnswer::Cancel)
        return;
    const QString path = ShowOpenDialog(this, QStringLiteral("TheCommonDialog"), kConfigFilter, kConfigExtension);
    if (path.isEmpty())
        return;
    DeriveConfigPaths(path);
    OpenConfiguration(gConfigFilePath);
    // The window shows whatever arrived, also after a failed open.
    CommandUp->hide();
    CommandDown->hide();
    ShowMainCfg();
    FillSceneListView(ListMain2);
    ShowDeviceCounts();
    gDirty = false;
    if (ListMain2->topLevelItemCount() > 0) {
        ListMain2->clearSelection();
        ListMain2->topLevelItem(0)->setSelected(true);
        ListMain2_Click();
    }
    CommandConn_Click();
    FillGroups(TextSearched);
    RefreshRuleView();
}

MsgAnswer FormInitial::AskToSave()
{
    const MsgAnswer answer = MsgBox(QStringLiteral("Save Configuration?"), MsgButtons::YesNoCancel, MsgIcon::Question);
    if (answer == MsgAnswer::Yes)
        Save_Click();
    return answer;
}

void FormInitial::ShowMainCfg() { TextName->setText(gMainConfig.m_strName); }

void FormInitial::Quit_Click() { close(); }

void FormInitial::TheName_Click()
{
    FormName dialog(this);
    dialog.exec();
    if (gMainConfig.m_bUpdate) {
        TextName->setText(gMainConfig.m_strName);
        gMainConfig.m_bUpdate = false;
    }
}

void FormInitial::Components_Click()
{
    FormComponents dialog(this);
    dialog.exec();
    if (gMainConfig.m_bUpdate) {
        ShowDeviceCounts();
        gMainConfig.m_bUpdate = false;
    }
}

void FormInitial::About_Click()
{
    FormEntry about(this);
    about.setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
    about.setModal(true);
    about.exec();
}

// ---------------------------------------------------------------- closing

void FormInitial::closeEvent(QCloseEvent* event)
{
    if (Form_Unload())
        event->accept();
    else
        event->ignore();
}

bool FormInitial::Form_Unload()
{
    const bool refused = gDirty && AskToSave() == MsgAnswer::Cancel;
    // The auto-save, in every case: named after today's date, so one a day.
    const QString dateName = ShortDateText().replace(u'/', u' ');
    const QString root = AutoSaveRoot();
    MakeDirectory(root + PathSeparator() + QStringLiteral("AutoSave"));
    gConfigFolder = root + PathSeparator() + QStringLiteral("AutoSave") + PathSeparator();
    gConfigName = dateName;
    gConfigFilePath = gConfigFolder + gConfigName + QStringLiteral(".qel");
    gAutoSaved = true;
    SaveConfiguration(gConfigFilePath);
    return !refused;
}

// ---------------------------------------------------------------- views

void FormInitial::setRuleViewVisible(bool visible)
{
    QList<QWidget*> rule = {TextSearched, Label15, CommandAdd, ListEvents, CommandBots, ListGlobalRules, ListMain2,
                            CommandAddScene, CommandEdit, CommandShowConfig, CommandDelete, CommandUp, CommandDown,
                            Label1, Label3};
    for (auto* b : CommandColor)
        rule << b;
    for (auto* b : CommandTargetsFilt)
        rule << b;
    for (auto* c : CheckSource)
        rule << c;
    for (auto* c : CheckTarget)
        rule << c;
    for (QWidget* w : rule)
        w->setVisible(visible);
}

void FormInitial::setDevicePanelVisible(bool visible)
{
    QList<QWidget*> panel = {txtEvPerSec, LabelEvPerSec, CommandTalpor};
    for (auto* l : DeviceLabels)
        panel << l;
    for (auto* c : m_countCombos)
        panel << c;
    for (auto* b : m_dialogButtons)
        panel << b;
    for (QWidget* w : panel)
        w->setVisible(visible);
    CommandUnlock->setVisible(visible && !bPanelLocked);
    CommandLock->setVisible(visible && bPanelLocked);
}

void FormInitial::CommandConn_Click()
{
    setDevicePanelVisible(false);
    setRuleViewVisible(true);
    ArrangeFilterChecks();
}
