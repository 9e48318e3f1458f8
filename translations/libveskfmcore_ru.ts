<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru">
<context>
    <name>ApplicationDialog</name>
    <message>
        <source>Always open this type with it</source>
        <translation>Всегда открывать этот тип этим приложением</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>Приложения</translation>
    </message>
    <message>
        <source>Open With</source>
        <translation>Открыть с помощью</translation>
    </message>
    <message>
        <source>or a command line</source>
        <translation>или командная строка</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s)</source>
        <translation>
            <numerusform>%n файл</numerusform>
            <numerusform>%n файла</numerusform>
            <numerusform>%n файлов</numerusform>
        </translation>
    </message>
    <message>
        <source>Open:</source>
        <translation>Открыть:</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>Тип:</translation>
    </message>
    <message>
        <source>Choose a program</source>
        <translation>Выбор программы</translation>
    </message>
    <message>
        <source>Set as Default</source>
        <translation>Сделать по умолчанию</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>For this type</source>
        <translation>Для этого типа</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Другие</translation>
    </message>
    <message>
        <source>Choose an application, or type a command line.</source>
        <translation>Выберите приложение или введите командную строку.</translation>
    </message>
    <message>
        <source>A type is written like &quot;text/plain&quot;.</source>
        <translation>Тип записывается в виде &quot;text/plain&quot;.</translation>
    </message>
    <message>
        <source>There is no such program.</source>
        <translation>Такой программы нет.</translation>
    </message>
    <message>
        <source>%1 cannot be started.</source>
        <translation>Не удалось запустить %1.</translation>
    </message>
</context>
<context>
    <name>ArchiveProblem</name>
    <message>
        <source>%1 cannot be read: the program that reads archives does not start</source>
        <translation>Не удалось прочитать %1: программа, читающая архивы, не запускается</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>Не удалось прочитать %1: %2</translation>
    </message>
    <message>
        <source>%1 is damaged, or is no archive</source>
        <translation>Файл %1 повреждён или не является архивом</translation>
    </message>
    <message>
        <source>%1 is encrypted</source>
        <translation>Архив %1 зашифрован</translation>
    </message>
    <message>
        <source>%1 is packed in a way that cannot be unpacked here</source>
        <translation>Архив %1 упакован способом, который здесь не поддерживается</translation>
    </message>
    <message>
        <source>%1 holds too many files</source>
        <translation>В архиве %1 слишком много файлов</translation>
    </message>
    <message>
        <source>%1 holds folders that are nested too deeply</source>
        <translation>В архиве %1 папки вложены слишком глубоко</translation>
    </message>
    <message>
        <source>%1 holds a name that is too long</source>
        <translation>В архиве %1 есть слишком длинное имя</translation>
    </message>
    <message>
        <source>%1 is too large when it is unpacked</source>
        <translation>Архив %1 слишком велик в распакованном виде</translation>
    </message>
    <message>
        <source>There is not enough free space to unpack %1</source>
        <translation>Недостаточно места, чтобы распаковать %1</translation>
    </message>
    <message>
        <source>%1 cannot be unpacked into the cache directory</source>
        <translation>Не удалось распаковать %1 в каталог кэша</translation>
    </message>
    <message>
        <source>%1 is damaged, or needs too much memory</source>
        <translation>Архив %1 повреждён или требует слишком много памяти</translation>
    </message>
    <message>
        <source>%1 has changed</source>
        <translation>Архив %1 изменился</translation>
    </message>
</context>
<context>
    <name>CorePaths</name>
    <message>
        <source>copy</source>
        <translation>копия</translation>
    </message>
</context>
<context>
    <name>EntryBasePropertySet</name>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Тип</translation>
    </message>
    <message>
        <source>MIME type</source>
        <translation>Тип MIME</translation>
    </message>
    <message>
        <source>symbolic link</source>
        <translation>символическая ссылка</translation>
    </message>
</context>
<context>
    <name>EntryDescribeThread</name>
    <message numerus="yes">
        <source>%n entry(s)</source>
        <translation>
            <numerusform>%n запись</numerusform>
            <numerusform>%n записи</numerusform>
            <numerusform>%n записей</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FileInfo</name>
    <message>
        <source>File information</source>
        <translation>Сведения о файлах</translation>
    </message>
    <message>
        <source>Size, time of the last change, owner and permissions of files.</source>
        <translation>Размер, время последнего изменения, владелец и права файлов.</translation>
    </message>
    <message>
        <source>Permissions</source>
        <translation>Права</translation>
    </message>
    <message numerus="yes">
        <source>%1 in %n file(s)</source>
        <translation>
            <numerusform>%1 в %n файле</numerusform>
            <numerusform>%1 в %n файлах</numerusform>
            <numerusform>%1 в %n файлах</numerusform>
        </translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Размер</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Изменён</translation>
    </message>
    <message>
        <source>Owner</source>
        <translation>Владелец</translation>
    </message>
    <message>
        <source>%1 B</source>
        <translation>%1 Б</translation>
    </message>
    <message>
        <source>(various)</source>
        <translation>(разные)</translation>
    </message>
    <message>
        <source>Owner:</source>
        <translation>Владелец:</translation>
    </message>
    <message>
        <source>Group:</source>
        <translation>Группа:</translation>
    </message>
    <message>
        <source>Permissions:</source>
        <translation>Права:</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Группа</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Остальные</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Чтение</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Запись</translation>
    </message>
    <message>
        <source>Execute</source>
        <translation>Выполнение</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>и ещё %n</numerusform>
            <numerusform>и ещё %n</numerusform>
            <numerusform>и ещё %n</numerusform>
        </translation>
    </message>
    <message>
        <source>The permissions of these could not be read or changed:</source>
        <translation>Не удалось прочитать или изменить права этих файлов:</translation>
    </message>
    <message>
        <source>Match case</source>
        <translation>С учётом регистра</translation>
    </message>
    <message>
        <source>Contains text</source>
        <translation>Содержит текст</translation>
    </message>
    <message>
        <source>at any time</source>
        <translation>в любое время</translation>
    </message>
    <message>
        <source>in the last hour</source>
        <translation>за последний час</translation>
    </message>
    <message>
        <source>in the last 24 hours</source>
        <translation>за последние 24 часа</translation>
    </message>
    <message>
        <source>in the last 7 days</source>
        <translation>за последние 7 дней</translation>
    </message>
    <message>
        <source>in the last 30 days</source>
        <translation>за последние 30 дней</translation>
    </message>
    <message>
        <source>in the last 365 days</source>
        <translation>за последние 365 дней</translation>
    </message>
    <message>
        <source>Not all permissions could be changed.</source>
        <translation>Не все права удалось изменить.</translation>
    </message>
    <message>
        <source>Changing permissions …</source>
        <translation>Права изменяются …</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Остановить</translation>
    </message>
    <message>
        <source>B</source>
        <translation>Б</translation>
    </message>
    <message>
        <source>KB</source>
        <translation>КБ</translation>
    </message>
    <message>
        <source>MB</source>
        <translation>МБ</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>ГБ</translation>
    </message>
    <message>
        <source>from</source>
        <translation>от</translation>
    </message>
    <message>
        <source>to</source>
        <translation>до</translation>
    </message>
    <message>
        <source>any</source>
        <translation>любой</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Единица</translation>
    </message>
</context>
<context>
    <name>FileOperations</name>
    <message>
        <source>shortcut</source>
        <translation>ярлык</translation>
    </message>
</context>
<context>
    <name>IconSize</name>
    <message>
        <source>Tiny</source>
        <translation>Крошечный</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>Маленький</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Средний</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>Большой</translation>
    </message>
    <message>
        <source>Very Large</source>
        <translation>Очень большой</translation>
    </message>
    <message>
        <source>Huge</source>
        <translation>Огромный</translation>
    </message>
</context>
<context>
    <name>LocalPlaces</name>
    <message>
        <source>Computer</source>
        <translation>Компьютер</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>Избранное</translation>
    </message>
    <message>
        <source>Places</source>
        <translation>Места</translation>
    </message>
    <message>
        <source>Storage devices</source>
        <translation>Устройства хранения</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Сеть</translation>
    </message>
    <message>
        <source>Network resources</source>
        <translation>Сетевые ресурсы</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>Файловая система</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Домашняя папка</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>Корзина</translation>
    </message>
</context>
<context>
    <name>PathAnalyzer</name>
    <message>
        <source>Nothing is selected</source>
        <translation>Ничего не выбрано</translation>
    </message>
    <message>
        <source>Nothing can be put there</source>
        <translation>Туда ничего нельзя поместить</translation>
    </message>
    <message>
        <source>Can&apos;t make operation over pair of dir and file entries</source>
        <translation>Операция над парой из папки и файла невозможна</translation>
    </message>
    <message>
        <source>Can&apos;t make operation over entries and file entry</source>
        <translation>Операция невозможна: место назначения — файл</translation>
    </message>
    <message>
        <source>The operation was cancelled</source>
        <translation>Операция отменена</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>B</source>
        <translation>Б</translation>
    </message>
    <message>
        <source>KB</source>
        <translation>КБ</translation>
    </message>
    <message>
        <source>MB</source>
        <translation>МБ</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>ГБ</translation>
    </message>
    <message>
        <source>TB</source>
        <translation>ТБ</translation>
    </message>
</context>
<context>
    <name>Service</name>
    <message>
        <source>Debug message</source>
        <translation>Отладочное сообщение</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Предупреждение</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>Критическая ошибка</translation>
    </message>
    <message>
        <source>Fatal</source>
        <translation>Фатальная ошибка</translation>
    </message>
</context>
<context>
    <name>ServiceInterfaceSingletone</name>
    <message>
        <source>can&apos;t connect to DBus service %1, perhaps usage &apos;dbus-launch &lt;program&gt;&apos; can solve this problem</source>
        <translation>не удалось подключиться к службе DBus %1; возможно, поможет запуск через «dbus-launch &lt;программа&gt;»</translation>
    </message>
    <message>
        <source>service %1 was not installed, perhaps usage &apos;dbus-launch &lt;program&gt;&apos; can solve this problem</source>
        <translation>служба %1 не установлена; возможно, поможет запуск через «dbus-launch &lt;программа&gt;»</translation>
    </message>
    <message>
        <source>DBus service %1 does not answer: %2</source>
        <translation>служба DBus %1 не отвечает: %2</translation>
    </message>
</context>
</TS>
