#include "mainwindow/FormAddEditScene.h"
#include <QFileInfo>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include "model/CMainConfig.h"
#include "model/CScene.h"
#include "model/ModuleGlobals.h"
#include "support/Controls.h"
#include "support/Convert.h"
#include "support/ModuleGUI.h"
#include "support/OnError.h"

qint16 gSceneDialogMode = 0;
QString gSceneDlgName;
QString gSceneDlgRemarks;
CheckedArray<QString, 0, 15> gSceneDlgMovies;
CheckedArray<qint16, 0, 3> gSceneDlgFPS;
CheckedArray<qint16, 0, 3> gSceneDlgQuality;
CheckedArray<QString, 0, 3> gSceneDlgRootFolder;
CheckedArray<qint16, 0, 3> gSceneDlgNFolders;
CheckedArray<qint16, 0, 3> gSceneDlgMaxT;

namespace {

QLineEdit* captureField(QGroupBox* frame, QGridLayout* grid, int row, const QString& name, int index,
                        const QString& caption, const QString& unit)
{
    grid->addWidget(new QLabel(caption, frame), row, 0);
    auto* edit = named(new QLineEdit(frame), arrayName(name, index));
    grid->addWidget(edit, row, 1);
    if (!unit.isEmpty())
        grid->addWidget(new QLabel(unit, frame), row, 2);
    return edit;
}

} // namespace

FormAddEditScene::FormAddEditScene(QWidget* owner) : QDialog(owner)
{
    setObjectName(QStringLiteral("FormAddEditScene"));
    auto* top = new QVBoxLayout(this);

    auto* head = new QGridLayout;
    head->addWidget(new QLabel(QStringLiteral("Scene"), this), 0, 0);
    LabelNumScene = named(new QLabel(this), QStringLiteral("LabelNumScene"));
    head->addWidget(LabelNumScene, 0, 1);
    head->addWidget(new QLabel(QStringLiteral("Scene Name:"), this), 1, 0);
    TextName = named(new QLineEdit(this), QStringLiteral("TextName"));
    TextName->setMinimumWidth(360);
    head->addWidget(TextName, 1, 1);
    head->addWidget(new QLabel(QStringLiteral("Remarks:"), this), 2, 0);
    TextRemarks = named(new QLineEdit(this), QStringLiteral("TextRemarks"));
    head->addWidget(TextRemarks, 2, 1);
    top->addLayout(head);

    // One row per Flash player; the rows of players that do not exist are hidden and take no room.
    auto* movies = new QGridLayout;
    for (int i = 0; i < 16; ++i) {
        auto* label = named(new QLabel(QStringLiteral("Flash SWF %1:").arg(i + 1), this), arrayName(QStringLiteral("Label4"), i));
        auto* text = named(new QLineEdit(this), arrayName(QStringLiteral("TextMovie"), i));
        auto* browse = named(new QPushButton(QStringLiteral("..."), this), arrayName(QStringLiteral("CommandMovie1"), i));
        browse->setFixedWidth(32);
        movies->addWidget(label, i, 0);
        movies->addWidget(text, i, 1);
        movies->addWidget(browse, i, 2);
        Label4 << label;
        TextMovie << text;
        CommandMovie1 << browse;
        connect(browse, &QPushButton::clicked, this, [this, i] { CommandMovie1_Click(i); });
    }
    movies->setVerticalSpacing(2);
    top->addLayout(movies);

    auto* frames = new QGridLayout;
    for (int i = 0; i < 4; ++i) {
        auto* frame = named(new QGroupBox(QStringLiteral("Capture %1").arg(i + 1), this), arrayName(QStringLiteral("FrameCapture"), i));
        auto* grid = new QGridLayout(frame);
        TextFPS << captureField(frame, grid, 0, QStringLiteral("TextFPS"), i, QStringLiteral("Frames/Second"), QStringLiteral("fps"));
        TextQuality << captureField(frame, grid, 1, QStringLiteral("TextQuality"), i, QStringLiteral("JPEG Quality (1-100)"), QString());
        TextRootFolder << captureField(frame, grid, 2, QStringLiteral("TextRootFolder"), i, QStringLiteral("Capture Root Folder"), QString());
        TextNFolders << captureField(frame, grid, 3, QStringLiteral("TextNFolders"), i, QStringLiteral("No. of Capture Folders"), QString());
        TextMaxT << captureField(frame, grid, 4, QStringLiteral("TextMaxT"), i, QStringLiteral("Max. Capture Time"), QStringLiteral("seconds"));
        frames->addWidget(frame, i / 2, i % 2);
        FrameCapture << frame;
    }
    top->addLayout(frames);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    CommandOK = named(new QPushButton(QStringLiteral("OK"), this), QStringLiteral("CommandOK"));
    CommandOK->setDefault(true);
    CommandCancel = named(new QPushButton(QStringLiteral("Cancel"), this), QStringLiteral("CommandCancel"));
    buttons->addWidget(CommandOK);
    buttons->addWidget(CommandCancel);
    top->addLayout(buttons);
    top->setSizeConstraint(QLayout::SetFixedSize);   // the height follows the rows on show

    connect(CommandOK, &QPushButton::clicked, this, &FormAddEditScene::CommandOK_Click);
    connect(CommandCancel, &QPushButton::clicked, this, &FormAddEditScene::CommandCancel_Click);
    Form_Load();
}

void FormAddEditScene::Form_Load()
{
    const CMainConfig& cfg = gMainConfig;
    gMainConfig.m_bUpdate = false;
    for (int i = 0; i < 16; ++i) {
        const bool shown = i < cfg.m_iNFlash;
        TextMovie[i]->setVisible(shown);
        CommandMovie1[i]->setVisible(shown);
        Label4[i]->setVisible(shown);
    }
    for (int i = 0; i < 4; ++i)
        FrameCapture[i]->setVisible(i < cfg.m_iNVideoCaps);

    if (gSceneDialogMode == 1) {
        setWindowTitle(QStringLiteral("Add Scene"));
        TextName->setText(QStringLiteral("New Scene"));
        for (int i = 0; i < cfg.m_iNVideoCaps && i < 4; ++i) {
            TextFPS[i]->setText(QStringLiteral("5"));
            TextQuality[i]->setText(QStringLiteral("50"));
            TextRootFolder[i]->setText(QStringLiteral("C:\\"));
            TextNFolders[i]->setText(QStringLiteral("8"));
            TextMaxT[i]->setText(QStringLiteral("3"));
        }
    } else if (gSceneDialogMode == 2) {
        setWindowTitle(QStringLiteral("Edit Scene"));
        TextName->setText(gSceneDlgName);
        TextRemarks->setText(gSceneDlgRemarks);
        for (int i = 0; i < cfg.m_iNFlash && i < 16; ++i)
            Skip([&] { TextMovie[i]->setText(gScenes.Item(gCurrentScene + 1)->m_strMovie(i)); });
        for (int i = 0; i < cfg.m_iNVideoCaps && i < 4; ++i) {
            Skip([&] {
                const auto& capture = gScenes.Item(gCurrentScene + 1)->PartList.Item(gCurrentPart + 1)->m_VideoCapture(i);
                TextFPS[i]->setText(QString::number(capture->m_iFPS));
                TextQuality[i]->setText(QString::number(capture->m_iQuality));
                TextRootFolder[i]->setText(capture->m_strRootFolder);
                TextNFolders[i]->setText(QString::number(capture->m_iNumFolders));
                TextMaxT[i]->setText(QString::number(capture->m_iMaxTime));
            });
        }
    }
    LabelNumScene->setText(QString::number(gCurrentScene));
}

void FormAddEditScene::CommandMovie1_Click(int index)
{
    const QString path = ShowOpenDialog(this, QStringLiteral("theCommonDialog"),
                                        QStringLiteral("Flash movies (*.swf)|*.swf"), QStringLiteral(".swf"));
    if (path.isEmpty())
        return;
    TextMovie[index]->setText(QFileInfo(path).fileName());
}

void FormAddEditScene::CommandOK_Click()
{
    const CMainConfig& cfg = gMainConfig;
    gDirty = true;
    gSceneDlgName = TextName->text().toUpper();
    gSceneDlgRemarks = TextRemarks->text();

    // The extension check asks once per press of OK; a short text keeps the row before's extension.
    bool asked = false;
    QString extension;
    for (int i = 0; i < cfg.m_iNFlash && i < 16; ++i) {
        const QString text = TextMovie[i]->text();
        if (text.size() >= 5)
            extension = text.right(4).toUpper();
        if (extension != QStringLiteral(".SWF") && !asked) {
            const MsgAnswer answer = MsgBox(QStringLiteral("WARNING: Flash movies must have .swf file extension. Do you wish to continue?"),
                                            MsgButtons::YesNo);
            if (answer == MsgAnswer::No)
                return;
            asked = true;
        }
        gSceneDlgMovies(i) = text;
    }

    // A text that is no number leaves the value the variable had.
    for (int i = 0; i < cfg.m_iNVideoCaps && i < 4; ++i) {
        Skip([&] { gSceneDlgFPS(i) = ToInteger(TextFPS[i]->text()); });
        Skip([&] { gSceneDlgQuality(i) = ToInteger(TextQuality[i]->text()); });
        gSceneDlgRootFolder(i) = TextRootFolder[i]->text();
        Skip([&] { gSceneDlgNFolders(i) = ToInteger(TextNFolders[i]->text()); });
        Skip([&] { gSceneDlgMaxT(i) = ToInteger(TextMaxT[i]->text()); });
    }
    gMainConfig.m_bUpdate = true;
    accept();
}

void FormAddEditScene::CommandCancel_Click() { reject(); }
