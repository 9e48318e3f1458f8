// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "settingsfile.h"

#include <QFile>
#include <QSettings>
#include <QTemporaryFile>

namespace VeskFM
{

namespace
{

std::unique_ptr<QSettings> openLayers()
{
    return std::make_unique<QSettings>(QStringLiteral("tessaro"), QStringLiteral("vesk-fm"));
}

/// The content as the toolkit reads it; null if it is broken.
std::unique_ptr<QSettings> parsed(const QByteArray &content)
{
    QTemporaryFile copy;
    if (!copy.open() || copy.write(content) != content.size() || !copy.flush())
        return nullptr;
    auto settings = std::make_unique<QSettings>(copy.fileName(), QSettings::NativeFormat);
    // Asked before any key is: a line of garbage spoils no other line and shows only later.
    return settings->status() == QSettings::NoError ? std::move(settings) : nullptr;
}

} // namespace

SettingsFile::SettingsFile()
    : m_path(openLayers()->fileName())
{
}

SettingsFile::~SettingsFile() = default;

QString SettingsFile::path() const
{
    return m_path;
}

bool SettingsFile::readCopy()
{
    QFile file(m_path);
    if (!file.exists()) {
        m_copy.reset();
        m_content.clear();
        return m_readable = true;
    }
    if (!file.open(QIODevice::ReadOnly))
        return m_readable = false;
    const QByteArray content = file.readAll();
    if (m_copy && m_readable && content == m_content)
        return true;
    std::unique_ptr<QSettings> copy = parsed(content);
    m_readable = copy != nullptr;
    if (m_readable) {
        m_copy = std::move(copy);
        m_content = content;
    }
    return m_readable;
}

bool SettingsFile::reload()
{
    if (!readCopy()) // before the flush, which would overwrite a broken file
        return false;
    m_layers = openLayers();
    m_layers->sync();
    return readCopy();
}

QVariant SettingsFile::value(const QString &key, const QVariant &fallback) const
{
    if (m_copy && m_copy->contains(key))
        return m_copy->value(key);
    return m_layers ? m_layers->value(key, fallback) : fallback;
}

bool SettingsFile::write(const QVector<QPair<QString, QVariant>> &values)
{
    if (!readCopy())
        return false;
    const std::unique_ptr<QSettings> store = openLayers(); // a new one: it carries no error of a former attempt
    for (const auto &[key, value] : values)
        store->setValue(key, value);
    store->sync();
    return store->status() != QSettings::AccessError && readCopy();
}

} // namespace VeskFM
