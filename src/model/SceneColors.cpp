#include "model/SceneColors.h"
#include <array>

std::optional<QColor> SceneColor(qint16 code)
{
    static constexpr std::array<QRgb, 16> kPalette = {
        0x000000, 0x000080, 0x008000, 0x008080, 0x800000, 0x800080, 0x808000, 0xC0C0C0,
        0x808080, 0x0000FF, 0x00FF00, 0x00FFFF, 0xFF0000, 0xFF00FF, 0xFFFF00, 0xFFFFFF,
    };
    if (code == 0)
        return QColor(0xDDDDDD);
    if (code == 8)
        return QColor(Qt::black);
    if (code < 0 || code > 15)
        return std::nullopt;
    return QColor(kPalette[static_cast<size_t>(code)]);
}
