#pragma once
// The system's printer as the program prints on it: lines of text, each in the
// emphasised (bold) type or not, gathered until EndDoc sends the document. The
// document goes to the default printer; on a machine with no printer at all it
// becomes a PDF file, named after the document, in the user's documents folder.
#include <QList>
#include <QString>

class Printer {
public:
    struct Line {
        QString text;
        bool bold = false;
    };

    explicit Printer(const QString& documentName);

    // 1 portrait, 2 landscape.
    void SetOrientation(int orientation);
    void SetFontBold(bool bold);
    void PrintLine(const QString& text);
    // Sends the document; returns where it went: the printer's name or the PDF's path.
    QString EndDoc();

    // What has been printed so far, in order.
    const QList<Line>& Lines() const { return m_lines; }
    // The PDF file the document goes to when the machine has no printer.
    static QString PdfPathFor(const QString& documentName);

private:
    QString m_documentName;
    int m_orientation = 1;
    bool m_bold = false;
    QList<Line> m_lines;
};
