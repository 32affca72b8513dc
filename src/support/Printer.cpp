#include "support/Printer.h"
#include <QDir>
#include <QFont>
#include <QFontMetrics>
#include <QPageLayout>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QStandardPaths>

Printer::Printer(const QString& documentName) : m_documentName(documentName) {}

void Printer::SetOrientation(int orientation) { m_orientation = orientation; }

void Printer::SetFontBold(bool bold) { m_bold = bold; }

void Printer::PrintLine(const QString& text) { m_lines.append({text, m_bold}); }

QString Printer::PdfPathFor(const QString& documentName)
{
    QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    if (folder.isEmpty())
        folder = QDir::homePath();
    QDir().mkpath(folder);
    QString name = documentName;
    for (const QChar c : QStringLiteral("/\\:*?\"<>|"))
        name.replace(c, u'_');
    if (name.isEmpty())
        name = QStringLiteral("QEL Setup");
    return QDir::toNativeSeparators(QDir(folder).filePath(name + QStringLiteral(".pdf")));
}

QString Printer::EndDoc()
{
    const bool noPrinter = QPrinterInfo::availablePrinterNames().isEmpty();
    QPrinter printer(noPrinter ? QPrinterInfo() : QPrinterInfo::defaultPrinter(), QPrinter::HighResolution);
    QString destination;
    if (noPrinter) {
        destination = PdfPathFor(m_documentName);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(destination);
    } else {
        destination = printer.printerName();
    }
    printer.setDocName(m_documentName);
    printer.setPageOrientation(m_orientation == 2 ? QPageLayout::Landscape : QPageLayout::Portrait);

    QPainter painter;
    if (!painter.begin(&printer))
        return QString();
    QFont font(QStringLiteral("DejaVu Sans"), 10);
    const QRect page = painter.viewport();
    int y = 0;
    for (const Line& line : m_lines) {
        font.setBold(line.bold);
        painter.setFont(font);
        const QFontMetrics metrics(font, painter.device());
        if (y + metrics.height() > page.height() && y > 0) {
            printer.newPage();
            y = 0;
        }
        painter.drawText(0, y + metrics.ascent(), line.text);
        y += metrics.height();
    }
    painter.end();
    return destination;
}
