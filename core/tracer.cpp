// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/tracer.h>

#include "core_p.h"

#include <fixedplaces.h>

#include <QDir>
#include <QFileInfo>
#include <QMutex>
#include <QMutexLocker>
#include <QVector>

#include <cstdio>

#include <pthread.h>

namespace VeskFM
{

namespace
{

struct TracedThread
{
    pthread_t id;
    int depth;
};

/// What all records share. Never destroyed, since other objects may be traced while the process exits.
struct TracerState
{
    QMutex mutex;
    FILE *stream = nullptr;
    bool closed = false; // at exit; to open the file again would truncate it
    QVector<TracedThread> threads;
};

TracerState &state()
{
    static auto *const shared = new TracerState;
    return *shared;
}

/// Closes the file at exit.
struct TracerCloser
{
    ~TracerCloser()
    {
        TracerState &tracer = state();
        const QMutexLocker lock(&tracer.mutex);
        if (tracer.stream)
            fclose(tracer.stream);
        tracer.stream = nullptr;
        tracer.closed = true;
    }
};

bool openLog(TracerState &tracer)
{
    static const TracerCloser closer;
    if (!tracer.stream && !tracer.closed)
        tracer.stream = fopen(VESKFM_TRACE_FILE, "we");
    return tracer.stream;
}

int currentThreadIndex(const TracerState &tracer)
{
    for (int i = 0; i < tracer.threads.size(); ++i) {
        if (pthread_equal(tracer.threads[i].id, pthread_self()))
            return i;
    }
    return -1;
}

/// Writes one record. @p kind is the text after the depth, such as "[ IN ]"; @p change what happens to the depth.
void record(const char *kind, int change, const char *file, const char *function, int line)
{
    TracerState &tracer = state();
    const QMutexLocker lock(&tracer.mutex);
    int thread = currentThreadIndex(tracer);
    if (thread < 0 && change != 0) {
        thread = tracer.threads.size();
        tracer.threads.append({pthread_self(), 0});
    }
    int depth = 0;
    if (thread >= 0) {
        int &current = tracer.threads[thread].depth;
        depth = qMax(current, current + change); // both ends of a scope print the depth inside it
        current += change;
    }
    if (openLog(tracer))
        fprintf(tracer.stream, "%*s%d: %d: %s, %s : %s (line: %d )\n", qMax(0, depth), "", thread, depth, kind, file,
                function, line);
}

} // namespace

void Tracer::enter(const char *file, const char *function, int line)
{
    record("[ IN ]", +1, file, function, line);
}

void Tracer::leave(const char *file, const char *function, int line)
{
    record("[ OUT ]", -1, file, function, line);
}

void Tracer::mark(const char *file, const char *function, int line)
{
    record("[ NOOP ]", 0, file, function, line);
}

void Tracer::value(const QString &text, const char *file, const char *function, int line)
{
    const QByteArray kind = "VALUE: " + text.toLocal8Bit();
    record(kind.constData(), 0, file, function, line);
}

bool Tracer::createLogDirectory()
{
    return QDir().mkpath(QFileInfo(QStringLiteral(VESKFM_TRACE_FILE)).path());
}

TracerScope::TracerScope(const char *file, const char *function, int line)
    : m_file(file)
    , m_function(function)
    , m_line(line)
{
    Tracer::enter(file, function, line);
    changeNestingDepth(+1);
}

TracerScope::~TracerScope()
{
    changeNestingDepth(-1);
    Tracer::leave(m_file, m_function, m_line);
}

} // namespace VeskFM
