// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/entrymatchwidget.h>

class QComboBox;
class QSpinBox;

namespace VeskFM
{

/// Asks for the size of files, from and to.
///
/// For tests and style sheets its parts are named "least", "leastUnit", "most" and "mostUnit".
class SizeRangeWidget : public EntryMatchWidget
{
    Q_OBJECT

public:
    /// @param acceptsDirectories whether directories pass, so that one can go on into them
    explicit SizeRangeWidget(bool acceptsDirectories, QWidget *parent = nullptr);
    EntryMatchValidator *createValidator(const std::atomic<bool> *running) const override;

private:
    struct Limit
    {
        QSpinBox *number; // children
        QComboBox *unit;
        bool isSet() const;
        qint64 unitBytes() const;
        qint64 bytes() const;
    };

    Limit addLimit(const QString &label, const QString &name);

    const bool m_acceptsDirectories;
    Limit m_least;
    Limit m_most;
};

} // namespace VeskFM
