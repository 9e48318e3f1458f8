// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/export.h>

#include <QString>
#ifdef VESKFM_TRACE
#include <QDebug>
#endif

namespace VeskFM
{

/// Writes a call trace, indented per thread, to the trace file; a debugging aid. The first record of a run truncates
/// the file. Where it cannot be opened, records are dropped. Any thread; lines never interleave.
class VESKFM_EXPORT Tracer
{
public:
    Tracer() = delete;

    static void enter(const char *file, const char *function, int line);
    static void leave(const char *file, const char *function, int line);
    static void mark(const char *file, const char *function, int line);
    static void value(const QString &text, const char *file, const char *function, int line);

    /// Creates the directory of the trace file where it is missing. Returns whether it is there.
    static bool createLogDirectory();
};

/// Traces the scope it lives in, and indents the message handler's output by one more level meanwhile.
class VESKFM_EXPORT TracerScope
{
public:
    /// @param file, function  borrowed for the life of the object
    TracerScope(const char *file, const char *function, int line);
    ~TracerScope();

private:
    Q_DISABLE_COPY(TracerScope)

    const char *const m_file;
    const char *const m_function;
    const int m_line;
};

} // namespace VeskFM

/// The tracer costs nothing in a build without VESKFM_TRACE. A value may be anything that QDebug prints.
#ifdef VESKFM_TRACE
#define VESK_TRACE_JOINED(a, b) a##b
#define VESK_TRACE_NAME(line) VESK_TRACE_JOINED(veskTracerScope, line)
#define VESK_TRACE_SCOPE() const ::VeskFM::TracerScope VESK_TRACE_NAME(__LINE__)(__FILE__, __func__, __LINE__)
#define VESK_TRACE_MARK() ::VeskFM::Tracer::mark(__FILE__, __func__, __LINE__)
#define VESK_TRACE_VALUE(expr)                                                                                         \
    do {                                                                                                               \
        QString veskTracerText;                                                                                        \
        QDebug(&veskTracerText).nospace().noquote() << (expr);                                                         \
        ::VeskFM::Tracer::value(veskTracerText, __FILE__, __func__, __LINE__);                                         \
    } while (false)
#else
#define VESK_TRACE_SCOPE()
#define VESK_TRACE_MARK()
#define VESK_TRACE_VALUE(expr)
#endif
