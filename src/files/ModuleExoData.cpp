#include "files/ModuleExoData.h"
#include <exception>
#include "files/ModuleVideoCapture.h"
#include "model/CExoData.h"
#include "support/NumberFormat.h"
#include "support/NumberText.h"
#include "support/TextFile.h"

namespace {

const QString kDashes = QString(44, u'-');

QString rowLine(const CExoData& data, int row)
{
    const QString sep = QStringLiteral(",");
    return gExoSensorLabels(row) + sep + Format(data.m_iChannel(row), QStringLiteral("#0")) + sep
        + gExoTypeNames(data.m_iType(row)) + sep + data.m_strItem(row) + sep
        + Format(data.m_iMin(row), QStringLiteral("#0")) + sep + Format(data.m_iMax(row), QStringLiteral("#0"));
}

} // namespace

bool WriteExoDataFile(qint16 index, const QString& path)
{
    try {
        TextFileWriter f(path);
        const CExoData& data = gExoData(index);
        f.PrintLine(QStringLiteral("; Exoskeleton ID."));
        f.PrintNumber(data.m_iID);
        f.PrintLine();
        f.PrintLine(QStringLiteral("Sensor,Canal,Tipo,Item,Min,Max"));
        f.PrintLine(kDashes);
        for (int row = 0; row <= 7; ++row)
            f.PrintLine(rowLine(data, row));
        f.PrintLine();
        for (int row = 8; row <= 24; ++row)
            f.PrintLine(rowLine(data, row));
        f.PrintLine();
        for (int row = 25; row <= 27; ++row)
            f.PrintLine(rowLine(data, row));
        f.PrintLine();
        f.PrintLine(rowLine(data, 28));
        f.PrintLine();
        f.PrintLine();
        f.Close();
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

bool ReadExoDataFile(qint16 index, const QString& path)
{
    try {
        TextFileReader f(path);
        CExoData& data = gExoData(index);
        f.LineInput();
        data.m_iID = ParseInteger(f.LineInput());
        f.LineInput();
        f.LineInput();
        f.LineInput();
        for (int row = 0; row < kExoRows; ++row) {
            QString line = f.LineInput();
            while (line.size() < 4)
                line = f.LineInput();
            int position = 1;
            GetNextCommaField(line, position);
            data.m_iChannel(row) = ParseInteger(GetNextCommaField(line, position));
            const QString type = GetNextCommaField(line, position);
            if (type == QStringLiteral("RANGO"))
                data.m_iType(row) = 0;
            else if (type == QStringLiteral("ONOFF"))
                data.m_iType(row) = 1;
            else if (type == QStringLiteral("DOBLE"))
                data.m_iType(row) = 2;
            else if (type == QStringLiteral("SELEC"))
                data.m_iType(row) = 3;
            data.m_strItem(row) = GetNextCommaField(line, position);
            data.m_iMin(row) = ParseInteger(GetNextCommaField(line, position));
            data.m_iMax(row) = ParseInteger(GetNextCommaField(line, position));
        }
        return true;
    } catch (const std::exception&) {
        return false;
    }
}
