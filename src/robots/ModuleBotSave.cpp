#include "robots/ModuleBotSave.h"
#include "files/ModuleSaveOpen.h"
#include "model/ModuleGlobals.h"
#include "support/ModuleGUI.h"

void SaveFromBotForm(QWidget* form)
{
    if (gConfigFilePath.isEmpty())
        gConfigFilePath = ShowSaveDialog(form, QStringLiteral("TheCommonDialog"),
                                         QStringLiteral("Configuration Files (*.qel)|*.qel"), QStringLiteral(".qel"));
    SaveConfiguration(gConfigFilePath);
}
