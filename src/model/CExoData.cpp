#include "model/CExoData.h"
#include <array>

CheckedArray<CExoData, 0, 1> gExoData;
CheckedArray<CExoData, 0, 1> gExoDataEdit;
CheckedArray<QString, 0, 31> gExoSensorLabels;
CheckedArray<QString, 0, 3> gExoTypeNames;

namespace {

enum ExoType : qint16 { RANGO = 0, ONOFF = 1, DOBLE = 2, SELEC = 3 };

struct ExoRow {
    const char* label;
    qint16 type;
    const char* item;
};

constexpr std::array<ExoRow, kExoRows> kRows = {{
    {"CI", RANGO, "0"},     {"CD", RANGO, "1"},     {"HI", RANGO, "2"},     {"HD", RANGO, "3"},
    {"RI", RANGO, "4"},     {"RD", RANGO, "5"},     {"II", RANGO, "6"},     {"ID", RANGO, "7"},
    {"FCI", ONOFF, "8"},    {"FCD", ONOFF, "9"},    {"P1", ONOFF, "10"},    {"P2", ONOFF, "11"},
    {"P3", ONOFF, "12"},    {"P4", ONOFF, "13"},    {"P5", ONOFF, "14"},    {"P6", ONOFF, "15"},
    {"DI1", ONOFF, "16"},   {"DI2", ONOFF, "17"},   {"DD1", ONOFF, "18"},   {"DD2", ONOFF, "19"},
    {"IMI", ONOFF, "20"},   {"IMD", ONOFF, "21"},   {"IPI", ONOFF, "22"},   {"IPD", ONOFF, "23"},
    {"IC", ONOFF, "24"},    {"C1yC2", DOBLE, "25y26"}, {"C3yC4", DOBLE, "27y28"}, {"C5yC6", DOBLE, "29y30"},
    {"SEL", SELEC, "31"},
}};

} // namespace

void InitExoData()
{
    for (int exo = 0; exo <= 1; ++exo) {
        CExoData& data = gExoData(exo);
        for (int row = 0; row < kExoRows; ++row) {
            data.m_iChannel(row) = static_cast<qint16>(row + 1);
            data.m_iMin(row) = 0;
            data.m_iMax(row) = 255;
            data.m_iType(row) = kRows[static_cast<size_t>(row)].type;
            data.m_strItem(row) = QString::fromLatin1(kRows[static_cast<size_t>(row)].item);
        }
    }
}

void InitExoSensorLabels()
{
    for (int row = 0; row <= 31; ++row)
        gExoSensorLabels(row) = row < kExoRows ? QString::fromLatin1(kRows[static_cast<size_t>(row)].label) : QString();
}

void InitExoTypeNames()
{
    gExoTypeNames(0) = QStringLiteral("RANGO");
    gExoTypeNames(1) = QStringLiteral("ONOFF");
    gExoTypeNames(2) = QStringLiteral("DOBLE");
    gExoTypeNames(3) = QStringLiteral("SELEC");
}
