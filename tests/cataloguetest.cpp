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
    void speaksTheLanguageOfTheSystem()
    {
        const auto speaks = [](const char *locale) {
            qputenv("LC_ALL", locale);
            qunsetenv("LANGUAGE");
            int argc = 1;
            char name[] = "cataloguetest";
            char *argv[] = {name, nullptr};
            const QCoreApplication application(argc, argv);
            return IconSize::nameForIndex(IconSize::nSizes - 1) + ' ' + Core::dataSizeAsString(2048);
        };
        QCOMPARE(speaks("de_CH.UTF-8"), "Riesig 2.00 KB");
        QCOMPARE(speaks("ru_RU.UTF-8"), "Огромный 2.00 КБ");
        QCOMPARE(speaks("eo.UTF-8"), "Huge 2.00 KB"); // no catalogue
    }
};

QTEST_APPLESS_MAIN(CatalogueTest)

#include "cataloguetest.moc"
