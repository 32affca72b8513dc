#include "model/CMainConfig.h"

CMainConfig gMainConfig;
