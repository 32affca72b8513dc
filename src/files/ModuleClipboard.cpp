#include "files/ModuleClipboard.h"

Collection<CClipboardItem> gClipboard;
