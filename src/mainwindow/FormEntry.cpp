#include "mainwindow/FormEntry.h"
#include <QEvent>
#include <QLabel>
#include <QLinearGradient>
#include <QPainter>
#include <QPixmap>
#include <QVBoxLayout>

namespace {

QPixmap splashPicture()
{
    QPixmap picture(480, 300);
    QPainter p(&picture);
    QLinearGradient sky(0, 0, 0, 300);
    sky.setColorAt(0, QColor(0x10, 0x18, 0x30));
    sky.setColorAt(1, QColor(0x40, 0x10, 0x50));
    p.fillRect(picture.rect(), sky);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(QColor(0xFF, 0xC0, 0x40), 3));
    for (int i = 0; i < 5; ++i)
        p.drawEllipse(QPointF(380, 90), 20.0 + i * 14, 20.0 + i * 14);
    QFont title = p.font();
    title.setPointSize(34);
    title.setBold(true);
    p.setFont(title);
    p.setPen(Qt::white);
    p.drawText(QRect(30, 150, 440, 60), Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("QEL Setup"));
    QFont sub = p.font();
    sub.setPointSize(12);
    sub.setBold(false);
    p.setFont(sub);
    p.setPen(QColor(0xDD, 0xDD, 0xDD));
    p.drawText(QRect(32, 210, 440, 30), Qt::AlignLeft | Qt::AlignVCenter,
               QStringLiteral("v4.0  -  live multimedia performance setup"));
    return picture;
}

} // namespace

FormEntry::FormEntry(QWidget* owner) : QDialog(owner, Qt::SplashScreen)
{
    setObjectName(QStringLiteral("FormEntry"));
    setWindowTitle(QStringLiteral("QEL Setup v4.0"));
    setAttribute(Qt::WA_DeleteOnClose, false);
    Image1 = new QLabel(this);
    Image1->setObjectName(QStringLiteral("Image1"));
    Image1->setPixmap(splashPicture());
    Image1->setCursor(Qt::PointingHandCursor);
    Image1->installEventFilter(this);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(Image1);
}

bool FormEntry::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == Image1 && event->type() == QEvent::MouseButtonRelease) {
        Image1_Click();
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

void FormEntry::Image1_Click() { done(QDialog::Accepted); }
