#include "files/ModuleArduinoData.h"
#include <exception>
#include "files/ModuleVideoCapture.h"
#include "model/CArduinoData.h"
#include "support/NumberFormat.h"
#include "support/NumberText.h"
#include "support/RuntimeError.h"
#include "support/TextFile.h"

namespace {

const QString kDashes = QString(44, u'-');

QString f0(qint64 n) { return Format(n, QStringLiteral("#0")); }

QString directionWord(qint16 type)
{
    switch (type) {
    case 0: return QStringLiteral("PWM");
    case 1: return QStringLiteral("INPUT");
    case 2: return QStringLiteral("OUTPUT");
    default: throw RangeError(QStringLiteral("Digital type %1").arg(type));
    }
}

} // namespace

bool WriteArduinoDataFile(qint16 index, const QString& path)
{
    try {
        TextFileWriter f(path);
        const CArduinoData& data = gArduinoData(index);
        f.PrintLine(QStringLiteral("; Arduino Label."));
        f.PrintLine(data.m_strLabel);
        f.PrintLine();
        f.PrintLine(QStringLiteral("; COM Port, #Analog Inputs, #Digital IOs."));
        f.PrintLine(f0(data.m_iCOMPort) + u',' + f0(data.m_iNumAnalogInputs) + u',' + f0(data.m_iNumDigitalIOs));
        f.PrintLine();
        f.PrintLine(QStringLiteral("Analog Inputs: Index,Min,Max"));
        f.PrintLine(kDashes);
        for (int i = 0; i < data.m_iNumAnalogInputs; ++i)
            f.PrintLine(f0(i) + u',' + f0(data.m_iMin(i)) + u',' + f0(data.m_iMax(i)));
        f.PrintLine();
        f.PrintLine(QStringLiteral("Digital IOs: Index,DigType(IN, OUT or PWM)"));
        f.PrintLine(kDashes);
        for (int i = 0; i < data.m_iNumDigitalIOs; ++i)
            f.PrintLine(f0(i) + u',' + directionWord(data.m_iDigitalType(i)));
        f.PrintLine();
        f.PrintLine();
        f.Close();
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

bool ReadArduinoDataFile(qint16 index, const QString& path)
{
    try {
        TextFileReader f(path);
        CArduinoData& data = gArduinoData(index);
        f.LineInput();
        data.m_strLabel = f.LineInput();
        f.LineInput();
        f.LineInput();
        const QString counts = f.LineInput();
        int position = 1;
        data.m_iCOMPort = ParseInteger(GetNextCommaField(counts, position));
        data.m_iNumAnalogInputs = ParseInteger(GetNextCommaField(counts, position));
        data.m_iNumDigitalIOs = ParseInteger(GetNextCommaField(counts, position));
        for (int k = 0; k < 3; ++k)
            f.LineInput();
        for (int i = 0; i < data.m_iNumAnalogInputs; ++i) {
            QString line = f.LineInput();
            while (line.size() < 4)
                line = f.LineInput();
            position = 1;
            GetNextCommaField(line, position);
            data.m_iMin(i) = ParseInteger(GetNextCommaField(line, position));
            data.m_iMax(i) = ParseInteger(GetNextCommaField(line, position));
        }
        for (int k = 0; k < 3; ++k)
            f.LineInput();
        for (int i = 0; i < data.m_iNumDigitalIOs; ++i) {
            QString line = f.LineInput();
            while (line.size() < 4)
                line = f.LineInput();
            position = 1;
            GetNextCommaField(line, position);
            const QString word = GetNextCommaField(line, position);
            if (word == QStringLiteral("PWM"))
                data.m_iDigitalType(i) = 0;
            else if (word == QStringLiteral("INPUT"))
                data.m_iDigitalType(i) = 1;
            else if (word == QStringLiteral("OUTPUT"))
                data.m_iDigitalType(i) = 2;
        }
        return true;
    } catch (const std::exception&) {
        return false;
    }
}
