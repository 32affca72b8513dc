#pragma once
// The check of a performance before the show. It writes the performance with
// the program's own writers into a scratch folder, reads it back with the
// program's own readers, and compares what each line was meant to carry with
// what came back, after the changes that the files make by design (fields that
// are not stored, " " for empty texts, trimmed names and so on). Beside that it
// looks at what a save and open cannot show: devices named by rules beyond the
// counts configured now, robot rules, COM ports given twice, OSC connections
// that share port and address, minimums above their maximums.
//
// The check changes nothing of the performance: every global it touches is
// put back as it was, gDirty included, and no message box is shown.
#include <vector>
#include "check/CFinding.h"

// All findings, in the order found: the rules, then the files, then the devices.
std::vector<CFinding> CheckPerformance();

// --- the parts of the check, each adding to `findings` ------------------------

// Each rule of every subscene (up to gMaxEventsPerPart) and each global rule,
// its block built by the rules writer and read back by the rules reader. The
// writer's " " in empty texts is taken out of the records again at once.
void CheckRuleBlocks(std::vector<CFinding>& findings);
// Every file of the performance but the rules file written to a scratch folder
// and read back, and the rules that the rules file leaves out. It changes the
// globals: CheckPerformance puts them back, and hands it copies of the global
// rules, which the writer changes.
void CheckFilesRoundTrip(std::vector<CFinding>& findings, bool rulesAlreadyBreak);
// Devices, ports, channels and items named beyond what is configured; robot
// rules; COM ports and OSC connections given twice; minimums above maximums.
void CheckDevices(std::vector<CFinding>& findings);
