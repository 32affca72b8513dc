#pragma once
// The run-time errors of the program. Handlers and file readers catch these
// the way the old runtime's error traps did; anything else is a real bug.
#include <stdexcept>
#include <QString>

class RuntimeError : public std::runtime_error {
public:
    explicit RuntimeError(const QString& what) : std::runtime_error(what.toStdString()) {}
};

// An index or position outside the bounds of an array or collection.
class RangeError : public RuntimeError {
public:
    explicit RangeError(const QString& what = QStringLiteral("Subscript out of range"))
        : RuntimeError(what) {}
};

// A text that does not convert to a number, or a number too large for its type.
class ConversionError : public RuntimeError {
public:
    explicit ConversionError(const QString& what = QStringLiteral("Type mismatch"))
        : RuntimeError(what) {}
};

// A file that cannot be opened, created or written, or read past its end.
class FileError : public RuntimeError {
public:
    explicit FileError(const QString& what) : RuntimeError(what) {}
};
