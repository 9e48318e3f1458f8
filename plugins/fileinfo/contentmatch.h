// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/entrymatchvalidator.h>

#include <QStringMatcher>

#include <atomic>

namespace VeskFM
{

/// Accepts regular files that contain a text, in UTF-8 or, with a byte order mark, in UTF-16 or UTF-32. Reads them piece
/// by piece, whatever their size. Symbolic links, devices, pipes and files of the kernel are not opened or not read; what
/// cannot be read does not match.
class ContentMatch : public EntryMatchValidator
{
public:
    /// @param running see EntryMatchWidget::createValidator()
    ContentMatch(const QString &text, Qt::CaseSensitivity sensitivity, const std::atomic<bool> *running);
    bool match(const Entry &entry) const override;
    int priority() const override;

private:
    bool contains(int descriptor) const;

    const QStringMatcher m_text;
    const std::atomic<bool> *const m_running; // borrowed; may be null
};

} // namespace VeskFM
