// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/core.h>
#include <veskfm/iconsize.h>

#include <QtTest>

using namespace VeskFM;

/// The library's own catalogue is installed when the application object is made, for the language of the system then.
class CatalogueTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void speaksTheLanguageOfTheSystem_data()
    {
        QTest::addColumn<QByteArray>("locale");
        QTest::addColumn<QString>("largest");
        QTest::addColumn<QString>("size");
        QTest::newRow("a language for all its countries") << QByteArray("de_CH.UTF-8") << "Riesig"
                                                          << "2.00 KB";
        QTest::newRow("another alphabet") << QByteArray("ru_RU.UTF-8") << "Огромный"
                                          << "2.00 КБ";
        QTest::newRow("no catalogue") << QByteArray("eo.UTF-8") << "Huge"
                                      << "2.00 KB";
    }

    void speaksTheLanguageOfTheSystem()
    {
        QFETCH(QByteArray, locale);
        qputenv("LC_ALL", locale);
        qunsetenv("LANGUAGE");
        int argc = 1;
        char name[] = "cataloguetest";
        char *argv[] = {name, nullptr};
        const QCoreApplication application(argc, argv);
        QTEST(IconSize::nameForIndex(IconSize::nSizes - 1), "largest");
        QTEST(Core::dataSizeAsString(2048), "size");
    }
};

QTEST_APPLESS_MAIN(CatalogueTest)

#include "cataloguetest.moc"
