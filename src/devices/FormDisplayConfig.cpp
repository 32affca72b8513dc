#include "devices/FormDisplayConfig.h"
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QResizeEvent>
#include "devices/ModuleScrollBar.h"
#include "model/CMainConfig.h"
#include "model/ModuleGlobals.h"
#include "support/Controls.h"
#include "support/Convert.h"
#include "support/ModuleGUI.h"
#include "support/NumberFormat.h"
#include "support/OnError.h"
#include "support/RuntimeError.h"

cScrollBar FormDisplayConfig::cScrollH;
cScrollBar FormDisplayConfig::cScrollV;

namespace {

// The grid, in twips: one column a manager, one block of rows an application.
constexpr int kManagers = 8;
constexpr int kApplications = 7;   // the most that comboNumApps offers
constexpr int kFirstColumnLeft = 120, kColumnPitch = 3000, kColumnWidth = 2850;
constexpr int kCaptionHeight = 270, kTextHeight = 330;
constexpr int kManagerTop = 660, kPathTop = 960, kCountTop = 1350, kCopyTop = 1740;
constexpr int kCountWidth = 900;
constexpr int kFirstBlockTop = 2220, kBlockPitch = 2280;
constexpr int kFormWidth = 13500, kFormHeight = 8400;
constexpr int kHeadHeight = 600, kFootHeight = 660;

int columnLeft(int manager) { return kFirstColumnLeft + manager * kColumnPitch; }
int blockTop(int application) { return kFirstBlockTop + application * kBlockPitch; }

template <typename W>
W* gridControl(QWidget* form, const QString& name, int left, int top, int width, int height)
{
    auto* control = named(new W(form), name);
    control->setGeometry(Twips(left), Twips(top), Twips(width), Twips(height));
    return control;
}

QString cell(const char* stem, int manager, int application)
{
    return QString::fromLatin1(stem) + Format(manager, QStringLiteral("#0")) + QStringLiteral("_")
        + Format(application, QStringLiteral("#0"));
}

template <typename T>
T* present(T* control)
{
    if (!control)
        throw RuntimeError(QStringLiteral("Object variable not set"));
    return control;
}

} // namespace

FormDisplayConfig::FormDisplayConfig(QWidget* owner) : QDialog(owner)
{
    setObjectName(QStringLiteral("FormDisplayConfig"));
    setWindowTitle(QStringLiteral("QEL Display Manager Configuration"));
    KeepControlOrder(this);

    Frame1 = named(new QGroupBox(QStringLiteral("FrameHead"), this), QStringLiteral("Frame1"));
    Frame1->setGeometry(0, 0, Twips(columnLeft(kManagers)), Twips(kHeadHeight));
    DrawWithoutCaption(Frame1);
    LabelQDMPort = named(new QLabel(QStringLiteral("QDM Port:"), Frame1), QStringLiteral("LabelQDMPort"));
    LabelQDMPort->setGeometry(Twips(120), Twips(180), Twips(1050), Twips(kCaptionHeight));
    TextQDMPort = named(new QLineEdit(QStringLiteral("1111"), Frame1), QStringLiteral("TextQDMPort"));
    TextQDMPort->setGeometry(Twips(1200), Twips(135), Twips(1200), Twips(kTextHeight));

    // Until the form loads, the count and copy controls wait hidden in the first column.
    for (int i = 0; i < kManagers; ++i) {
        comboNumApps(i) = gridControl<QComboBox>(this, arrayName(QStringLiteral("comboNumApps"), i),
                                                 columnLeft(0) + kColumnWidth - kCountWidth, kCountTop, kCountWidth,
                                                 kTextHeight);
        comboNumApps(i)->hide();
        connect(comboNumApps(i), &QComboBox::activated, this, [this, i] { comboNumApps_Click(i); });
        CommandCopyConfig(i) = gridControl<QPushButton>(this, arrayName(QStringLiteral("CommandCopyConfig"), i),
                                                        columnLeft(0), kCopyTop, kColumnWidth, 360);
        CommandCopyConfig(i)->setText(QStringLiteral("Copy conf to others"));
        CommandCopyConfig(i)->hide();
        connect(CommandCopyConfig(i), &QPushButton::clicked, this, [this, i] { CommandCopyConfig_Click(i); });
    }

    FrameOKCancel = named(new QGroupBox(QStringLiteral("FrameOK"), this), QStringLiteral("FrameOKCancel"));
    FrameOKCancel->setGeometry(0, Twips(kFormHeight - kFootHeight), Twips(kFormWidth),
                               Twips(kFootHeight));
    DrawWithoutCaption(FrameOKCancel);
    CommandOK = named(new QPushButton(QStringLiteral("OK"), FrameOKCancel), QStringLiteral("CommandOK"));
    CommandOK->setGeometry(Twips(120), Twips(120), Twips(1350), Twips(420));
    CommandCancel = named(new QPushButton(QStringLiteral("Cancel"), FrameOKCancel), QStringLiteral("CommandCancel"));
    CommandCancel->setGeometry(Twips(1590), Twips(120), Twips(1350), Twips(420));
    connect(CommandOK, &QPushButton::clicked, this, &FormDisplayConfig::CommandOK_Click);
    connect(CommandCancel, &QPushButton::clicked, this, &FormDisplayConfig::CommandCancel_Click);

    resize(Twips(kFormWidth), Twips(kFormHeight));
}

void FormDisplayConfig::setVisible(bool visible)
{
    if (visible && !m_loaded) {
        m_loaded = true;
        Form_Load();
    }
    QDialog::setVisible(visible);
}

void FormDisplayConfig::resizeEvent(QResizeEvent* event)
{
    QDialog::resizeEvent(event);
    Form_Resize();
}

void FormDisplayConfig::Form_Load()
{
    Skip([&] { TextQDMPort->setText(QString::number(gMainConfig.m_iQDMPort)); });
    for (int i = 0; i < iNumQDMs; ++i)
        Skip([&] { makeColumn(i); });
    // The grid passes under the head and the foot.
    Frame1->raise();
    FrameOKCancel->raise();
}

// The controls of manager i, filled from the record; the applications beyond
// its count are not shown.
void FormDisplayConfig::makeColumn(int i)
{
    const int left = columnLeft(i);
    const QString n = Format(i, QStringLiteral("#0"));
    QLabel*& head = LabelAnalog(i);
    QLineEdit*& path = TxtPath(i);
    head = gridControl<QLabel>(this, QStringLiteral("LabelAnalog") + n, left, kManagerTop, kColumnWidth, kCaptionHeight);
    head->setText(QStringLiteral("QEL Display Manager ") + QString::number(i + 1));
    path = gridControl<QLineEdit>(this, QStringLiteral("TxtPath") + n, left, kPathTop, kColumnWidth, kTextHeight);
    path->setText(gMainConfig.m_strDisplayManagerPath(i));
    for (int j = 0; j < kApplications; ++j) {
        const int top = blockTop(j);
        LabelVideoApp(i, j) = gridControl<QLabel>(this, cell("LabelVideoApp", i, j), left, top, kColumnWidth, kCaptionHeight);
        TextVideoApp(i, j) = gridControl<QLineEdit>(this, cell("TextVideoApp", i, j), left, top + 270, kColumnWidth, kTextHeight);
        TextVideoApp(i, j)->setText(gMainConfig.m_strVideoAppLabel(i, j));
        LabelWindowName(i, j) = gridControl<QLabel>(this, cell("LabelWindowName", i, j), left, top + 630, kColumnWidth, kCaptionHeight);
        WindowName(i, j) = gridControl<QLineEdit>(this, cell("WindowName", i, j), left, top + 900, kColumnWidth, kTextHeight);
        WindowName(i, j)->setText(gMainConfig.m_strVideoAppWindow(i, j));
        LabelVideoAppPath(i, j) = gridControl<QLabel>(this, cell("LabelVideoAppPath", i, j), left, top + 1260, kColumnWidth, kCaptionHeight);
        VideoAppPath(i, j) = gridControl<QLineEdit>(this, cell("VideoAppPath", i, j), left, top + 1530, kColumnWidth, kTextHeight);
        VideoAppPath(i, j)->setText(gMainConfig.m_strVideoAppPath(i, j));
        VideoAppLaunch(i, j) = gridControl<QCheckBox>(this, cell("VideoAppLaunch", i, j), left, top + 1920, 300, kCaptionHeight);
        VideoAppLaunch(i, j)->setChecked(gMainConfig.m_bVideoAppLaunch(i, j));
        VideoAppLaunchLabel(i, j) = gridControl<QLabel>(this, cell("VideoAppLaunchLabel", i, j), left + 330, top + 1920,
                                                        kColumnWidth - 330, kCaptionHeight);
        VideoAppLaunchLabel(i, j)->setText(QStringLiteral("Launch on startup"));
    }
    QComboBox* count = comboNumApps(i);
    count->move(Twips(left + kColumnWidth - kCountWidth), count->y());
    for (int k = 0; k <= kApplications; ++k)
        count->addItem(QString::number(k));
    Skip([&] { count->setCurrentIndex(gMainConfig.m_iNAppPerQDM(i)); });
    count->show();
    QPushButton* copy = CommandCopyConfig(i);
    copy->move(Twips(left), copy->y());
    copy->setVisible(iNumQDMs > 1);
    showApplications(i);
}

// Shows the application rows of column i below its count and hides the rest.
void FormDisplayConfig::showApplications(int i)
{
    const int count = comboNumApps(i)->currentIndex();
    for (int j = 0; j < kApplications; ++j) {
        const bool shown = j < count;
        const QString k = QString::number(j + 1);
        Skip([&] {
            present(LabelVideoApp(i, j))->setText(QStringLiteral("Video application ") + k + QStringLiteral(" label"));
            LabelVideoApp(i, j)->setVisible(shown);
        });
        Skip([&] { present(TextVideoApp(i, j))->setVisible(shown); });
        Skip([&] {
            present(LabelWindowName(i, j))->setText(QStringLiteral("App window ") + k + QStringLiteral(" name"));
            LabelWindowName(i, j)->setVisible(shown);
        });
        Skip([&] { present(WindowName(i, j))->setVisible(shown); });
        Skip([&] {
            present(LabelVideoAppPath(i, j))->setText(QStringLiteral("Application ") + k + QStringLiteral(" path"));
            LabelVideoAppPath(i, j)->setVisible(shown);
        });
        Skip([&] { present(VideoAppPath(i, j))->setVisible(shown); });
        Skip([&] { present(VideoAppLaunch(i, j))->setVisible(shown); });
        Skip([&] { present(VideoAppLaunchLabel(i, j))->setVisible(shown); });
    }
}

void FormDisplayConfig::Form_Resize()
{
    Skip([&] { FrameOKCancel->setGeometry(0, height() - FrameOKCancel->height(), width(), FrameOKCancel->height()); });
    cScrollH.DibujarScrollBarHoriz(this);
    cScrollV.DibujarScrollBarVert(this);
}

void FormDisplayConfig::comboNumApps_Click(int index)
{
    if (gSuppressComboEvents)
        return;
    Skip([&] { showApplications(index); });
    cScrollH.DibujarScrollBarHoriz(this);
    cScrollV.DibujarScrollBarVert(this);
}

void FormDisplayConfig::CommandCopyConfig_Click(int index)
{
    const QString question = QStringLiteral("The configuration of QDM ") + QString::number(index + 1)
        + QStringLiteral(" will be copied to the rest of the QDMs. Do you want to continue?");
    if (MsgBox(question, MsgButtons::YesNo, MsgIcon::Question, QStringLiteral("QDM Configuration")) != MsgAnswer::Yes)
        return;
    for (int k = 0; k < iNumQDMs; ++k) {
        if (k == index)
            continue;
        Skip([&] { comboNumApps(k)->setCurrentIndex(comboNumApps(index)->currentIndex()); });
        comboNumApps_Click(k);
        for (int j = 0; j < kApplications; ++j) {
            Skip([&] { present(TextVideoApp(k, j))->setText(present(TextVideoApp(index, j))->text()); });
            Skip([&] { present(WindowName(k, j))->setText(present(WindowName(index, j))->text()); });
            Skip([&] { present(VideoAppPath(k, j))->setText(present(VideoAppPath(index, j))->text()); });
            Skip([&] { present(VideoAppLaunch(k, j))->setChecked(present(VideoAppLaunch(index, j))->isChecked()); });
        }
    }
}

void FormDisplayConfig::CommandOK_Click()
{
    for (int i = 0; i < iNumQDMs; ++i) {
        Skip([&] { gMainConfig.m_strDisplayManagerPath(i) = present(TxtPath(i))->text(); });
        Skip([&] {
            QString& path = gMainConfig.m_strDisplayManagerPath(i);
            if (!path.isEmpty() && !path.endsWith(u'\\'))
                path += u'\\';
        });
        Skip([&] { gMainConfig.m_iNAppPerQDM(i) = static_cast<qint16>(comboNumApps(i)->currentIndex()); });
        int count = 0;
        Skip([&] { count = gMainConfig.m_iNAppPerQDM(i); });
        for (int j = 0; j < count; ++j) {
            Skip([&] { gMainConfig.m_strVideoAppLabel(i, j) = present(TextVideoApp(i, j))->text(); });
            Skip([&] { gMainConfig.m_strVideoAppWindow(i, j) = present(WindowName(i, j))->text(); });
            Skip([&] { gMainConfig.m_strVideoAppPath(i, j) = present(VideoAppPath(i, j))->text(); });
            Skip([&] { gMainConfig.m_bVideoAppLaunch(i, j) = present(VideoAppLaunch(i, j))->isChecked(); });
        }
        // An application not in use is marked for launching.
        for (int j = count; j <= 7; ++j)
            Skip([&] { gMainConfig.m_bVideoAppLaunch(i, j) = true; });
    }
    Skip([&] { gMainConfig.m_iQDMPort = ToInteger(TextQDMPort->text()); });
    gDirty = true;
    gMainConfig.m_bUpdate = true;
    cScrollH.m_bCreated = false;
    cScrollV.m_bCreated = false;
    accept();
}

void FormDisplayConfig::CommandCancel_Click()
{
    cScrollH.m_bCreated = false;
    cScrollV.m_bCreated = false;
    gDirty = false;
    gMainConfig.m_bUpdate = false;
    reject();
}
