#include "devices/ModuleDeviceRows.h"

void FitFormToRows(QWidget* form, int count, QWidget* ok, QWidget* cancel)
{
    const int top = TwipsToPixels(count * kRowPitch + 1050);
    ok->move(ok->x(), top);
    cancel->move(cancel->x(), top);
    form->resize(form->width(), TwipsToPixels(count * kRowPitch + 2000));
}
