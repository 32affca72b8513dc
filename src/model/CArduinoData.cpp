#include "model/CArduinoData.h"
#include "support/NumberFormat.h"

CheckedArray<CArduinoData, 0, 15> gArduinoData;

void InitArduinoData()
{
    for (int i = 0; i <= 15; ++i) {
        CArduinoData& data = gArduinoData(i);
        data.m_strLabel = QStringLiteral("Arduino ") + Format(i + 1, QStringLiteral("#0"));
        data.m_iCOMPort = 1;
        data.m_iNumDigitalIOs = 96;
        data.m_iNumAnalogInputs = 32;
        data.m_iDigitalType.Fill(1);
        data.m_iMin.Fill(0);
        data.m_iMax.Fill(1023);
    }
}
