// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/userpropcaps.h>

#include <veskfm/global.h>

#include <QSettings>

namespace VeskFM
{

namespace
{

/// Enters the group of one user as long as it lives.
class UserGroup
{
public:
    explicit UserGroup(unsigned int uid)
        : settings(Global::ptr()->settings())
    {
        settings->beginGroup(QStringLiteral("userPropertyCapabilities"));
        settings->beginGroup(QString::number(uid));
    }
    ~UserGroup()
    {
        settings->endGroup();
        settings->endGroup();
    }

    QSettings *const settings;

private:
    Q_DISABLE_COPY(UserGroup)
};

} // namespace

UserPropCaps *UserPropCaps::m_ptr = nullptr;

UserPropCaps *UserPropCaps::ptr()
{
    return m_ptr ? m_ptr : new UserPropCaps; // the constructor stores it
}

UserPropCaps::UserPropCaps()
{
    if (!m_ptr)
        m_ptr = this;
}

UserPropCaps::~UserPropCaps()
{
    if (m_ptr == this)
        m_ptr = nullptr;
}

void UserPropCaps::setAccessibility(unsigned int uid, const QString &capability, bool accessible)
{
    if (!capability.isEmpty())
        UserGroup(uid).settings->setValue(capability, accessible);
}

bool UserPropCaps::isAccessible(unsigned int uid, const QString &capability) const
{
    return capability.isEmpty() || UserGroup(uid).settings->value(capability, true).toBool();
}

void UserPropCaps::release() {}

} // namespace VeskFM
