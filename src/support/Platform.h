#pragma once
// What the program asks of the machine it runs on.
#include <QString>

// The machine's own IPv4 address as dotted text: the first non-loopback
// address of an interface that is up, "127.0.0.1" when there is none.
QString LocalIPAddress();

// The folder of the program, with native separators and no trailing separator.
QString AppPath();

// Today's date in the short form of the locale in force (the system's, unless
// the program set another default).
QString ShortDateText();

// Creates one folder; false if it cannot (for instance because it exists).
bool MakeDirectory(const QString& path);

// The native path separator, "\" on Windows and "/" elsewhere.
QString PathSeparator();

// Sets up the C library's memory allocator for the program's pattern of use.
// Releasing a large performance frees hundreds of thousands of small blocks;
// with glibc's "fast bins" these are all merged at the next large allocation,
// a pause of tens of milliseconds inside the following file read. Without fast
// bins a block is merged as it is freed. Elsewhere this does nothing.
void ConfigureMemoryAllocator();
