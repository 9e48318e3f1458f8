// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/export.h>
#include <veskfm/singletone.h>

#include <QIcon>
#include <QList>
#include <QString>

#include <memory>

namespace VeskFM
{

class Entry;
class PropertyEnumerator;
class PropsPlugin;
class TextDigestEnumerator;

/// The property engine of the application: the enumerator that all models share, over the loaded plug-ins.
///
/// Thread: GUI.
class VESKFM_EXPORT Props : public Singletone
{
public:
    static Props *ptr();
    Props();
    ~Props() override;

    /// Owned by this object; also after release(), since rows still refer to it. Null only to a plug-in that asks while
    /// it is being loaded.
    PropertyEnumerator *propertyEnumerator();
    QString displayedName(const Entry &entry) const;
    QIcon icon(const Entry &entry) const; ///< reads the entry's content; blocks

    TextDigestEnumerator *createTextDigestEnumerator();                 ///< for one worker; give it back
    void releaseTextDigestEnumerator(TextDigestEnumerator *enumerator); ///< deletes it
    void release() override; ///< digests of enumerators made later come out empty

private:
    static Props *m_ptr;

    QList<PropsPlugin *> m_plugins; // borrowed
    std::unique_ptr<PropertyEnumerator> m_propertyEnumerator;
    QList<TextDigestEnumerator *> m_textDigestEnumerators; // handed out, not yet given back
};

} // namespace VeskFM
