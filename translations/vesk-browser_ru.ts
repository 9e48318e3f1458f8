<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru">
<context>
    <name>ArchiveFiles</name>
    <message>
        <source>Cancelled</source>
        <translation>Отменено</translation>
    </message>
    <message>
        <source>Unpacking %1 …</source>
        <translation>Распаковка %1 …</translation>
    </message>
    <message>
        <source>%1 %2 % (Esc cancels)</source>
        <translation>%1 %2 % (Esc — отмена)</translation>
    </message>
    <message>
        <source>%1 (Esc cancels)</source>
        <translation>%1 (Esc — отмена)</translation>
    </message>
</context>
<context>
    <name>FileActions</name>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>Open With…</source>
        <translation>Открыть с помощью…</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Создать папку</translation>
    </message>
    <message>
        <source>New File</source>
        <translation>Создать файл</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Переименовать</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>Переместить в корзину</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Восстановить</translation>
    </message>
    <message>
        <source>Empty Trash</source>
        <translation>Очистить корзину</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Вырезать</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Вставить</translation>
    </message>
    <message>
        <source>Copy to Other Pane</source>
        <translation>Копировать в другую панель</translation>
    </message>
    <message>
        <source>Move to Other Pane</source>
        <translation>Переместить в другую панель</translation>
    </message>
    <message>
        <source>Empty File</source>
        <translation>Пустой файл</translation>
    </message>
    <message>
        <source>New file</source>
        <translation>Новый файл</translation>
    </message>
</context>
<context>
    <name>FileWork</name>
    <message numerus="yes">
        <source>%Ln item(s)</source>
        <translation>
            <numerusform>%Ln объект</numerusform>
            <numerusform>%Ln объекта</numerusform>
            <numerusform>%Ln объектов</numerusform>
        </translation>
    </message>
    <message>
        <source>Only applications of the kiosk are started here</source>
        <translation>Здесь запускаются только приложения киоска</translation>
    </message>
    <message>
        <source>The service that opens files is not installed here</source>
        <translation>Служба открытия файлов здесь не установлена</translation>
    </message>
    <message>
        <source>Opening %1</source>
        <translation>Открывается %1</translation>
    </message>
    <message>
        <source>Moving %1</source>
        <translation>Перемещение: %1</translation>
    </message>
    <message>
        <source>Copying %1</source>
        <translation>Копирование: %1</translation>
    </message>
    <message>
        <source>Trashing %1</source>
        <translation>В корзину: %1</translation>
    </message>
    <message>
        <source>Restoring %1</source>
        <translation>Восстановление: %1</translation>
    </message>
    <message>
        <source>Delete %1 for good? This cannot be undone.</source>
        <translation>Удалить безвозвратно: %1? Это действие нельзя отменить.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Deleting %1</source>
        <translation>Удаление: %1</translation>
    </message>
    <message>
        <source>Empty Trash</source>
        <translation>Очистить корзину</translation>
    </message>
    <message>
        <source>Delete all that is in the trash for good? This cannot be undone.</source>
        <translation>Безвозвратно удалить всё, что есть в корзине? Это действие нельзя отменить.</translation>
    </message>
    <message>
        <source>Emptying the trash</source>
        <translation>Очистка корзины</translation>
    </message>
    <message>
        <source>A name cannot be “%1”</source>
        <translation>Имя не может быть «%1»</translation>
    </message>
    <message>
        <source>Renaming</source>
        <translation>Переименование</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>Новая папка</translation>
    </message>
    <message>
        <source>New file</source>
        <translation>Новый файл</translation>
    </message>
</context>
<context>
    <name>FilterBar</name>
    <message>
        <source>Filter: name or *.png;*.jpg</source>
        <translation>Фильтр: имя или *.png;*.jpg</translation>
    </message>
</context>
<context>
    <name>FindForm</name>
    <message>
        <source>*.png;*.jpg or a part of the name</source>
        <translation>*.png;*.jpg или часть имени</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Имя:</translation>
    </message>
    <message>
        <source>…</source>
        <translation>…</translation>
    </message>
    <message>
        <source>Choose the folder</source>
        <translation>Выбрать папку</translation>
    </message>
    <message>
        <source>&amp;Where:</source>
        <translation>&amp;Где:</translation>
    </message>
    <message>
        <source>Sub&amp;folders</source>
        <translation>&amp;Вложенные папки</translation>
    </message>
    <message>
        <source>&amp;Hidden files</source>
        <translation>С&amp;крытые файлы</translation>
    </message>
    <message>
        <source>In &amp;archives</source>
        <translation>В &amp;архивах</translation>
    </message>
    <message>
        <source>Where to look</source>
        <translation>Где искать</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
</context>
<context>
    <name>FindResults</name>
    <message>
        <source>Folder</source>
        <translation>Папка</translation>
    </message>
</context>
<context>
    <name>FindThread</name>
    <message>
        <source>%1 is not there</source>
        <translation>%1 не существует</translation>
    </message>
</context>
<context>
    <name>FindWindow</name>
    <message>
        <source>F&amp;ind</source>
        <translation>&amp;Найти</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Остановить</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Показать в папке</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>Properties…</source>
        <translation>Свойства…</translation>
    </message>
    <message>
        <source>%1 is not a folder</source>
        <translation>%1 — не папка</translation>
    </message>
    <message>
        <source>Find: searching, %1 found</source>
        <translation>Поиск: идёт, найдено %1</translation>
    </message>
    <message>
        <source>Find: %1 found</source>
        <translation>Поиск: найдено %1</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>%1 found, %2 looked at, in %3 s</source>
        <translation>Найдено %1, просмотрено %2 за %3 с</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Тип</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Расположение</translation>
    </message>
    <message>
        <source>Link to</source>
        <translation>Ссылка на</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Размер</translation>
    </message>
    <message>
        <source>%1 (%2 bytes)</source>
        <translation>%1 (байт: %2)</translation>
    </message>
    <message>
        <source>%1 entries</source>
        <translation>Объектов: %1</translation>
    </message>
    <message>
        <source>%1 folders, %2 others</source>
        <translation>Папок: %1, остальных: %2</translation>
    </message>
    <message>
        <source>several folders</source>
        <translation>несколько папок</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Содержимое</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Создан</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Изменён</translation>
    </message>
    <message>
        <source>Accessed</source>
        <translation>Открыт</translation>
    </message>
</context>
<context>
    <name>ListingState</name>
    <message>
        <source>This folder cannot be read: %1</source>
        <translation>Эту папку нельзя прочитать: %1</translation>
    </message>
    <message>
        <source>No name here matches the filter</source>
        <translation>Ни одно имя здесь не подходит под фильтр</translation>
    </message>
    <message>
        <source>Nothing to show here, hidden files aside</source>
        <translation>Здесь ничего нет, кроме скрытых файлов</translation>
    </message>
    <message>
        <source>This folder is empty</source>
        <translation>Эта папка пуста</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Navigation</source>
        <translation>Навигация</translation>
    </message>
    <message>
        <source>About</source>
        <translation>О программе</translation>
    </message>
    <message>
        <source>A file manager that shows what libveskfmcore %1 can do.</source>
        <translation>Файловый менеджер, который показывает возможности libveskfmcore %1.</translation>
    </message>
    <message>
        <source>Descending</source>
        <translation>По убыванию</translation>
    </message>
</context>
<context>
    <name>OperationTracker</name>
    <message>
        <source>cancelled</source>
        <translation>отменено</translation>
    </message>
    <message>
        <source>something is not there any more</source>
        <translation>что-то уже не существует</translation>
    </message>
    <message>
        <source>permission denied</source>
        <translation>нет прав доступа</translation>
    </message>
    <message>
        <source>the name is taken</source>
        <translation>имя занято</translation>
    </message>
    <message>
        <source>no space left</source>
        <translation>нет свободного места</translation>
    </message>
    <message>
        <source>a folder cannot go into itself</source>
        <translation>папку нельзя поместить в неё же</translation>
    </message>
    <message>
        <source>not possible here</source>
        <translation>здесь это невозможно</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>не удалось</translation>
    </message>
    <message>
        <source>something changed while it was moved, and stays</source>
        <translation>что-то изменилось при перемещении и осталось на месте</translation>
    </message>
    <message>
        <source>The service for file operations is not installed here</source>
        <translation>Служба операций с файлами здесь не установлена</translation>
    </message>
    <message>
        <source>done</source>
        <translation>готово</translation>
    </message>
    <message>
        <source>%1: %2 %</source>
        <translation>%1: %2 %</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>Shows directories. In a kiosk there is no menu bar, and no way to type a path, to change settings, to open
another window, or to start an application that the kiosk does not allow.</source>
        <translation>Показывает каталоги. В режиме киоска нет строки меню и нельзя ввести путь, изменить настройки,
открыть ещё одно окно или запустить приложение, которое киоск не разрешает.</translation>
    </message>
    <message>
        <source>Directory to show, a path or a URL; the current one if not given. Each gets a window.</source>
        <translation>Каталог, путь или URL; без указания — текущий. Для каждого открывается окно.</translation>
    </message>
    <message>
        <source>Show this help and exit.</source>
        <translation>Показать эту справку и выйти.</translation>
    </message>
    <message>
        <source>Print the rows as a table and exit.</source>
        <translation>Вывести строки таблицей и выйти.</translation>
    </message>
    <message>
        <source>Save a picture of the window and exit.</source>
        <translation>Сохранить снимок окна и выйти.</translation>
    </message>
    <message>
        <source>Show hidden files too.</source>
        <translation>Показывать и скрытые файлы.</translation>
    </message>
    <message>
        <source>Sort by a column: Name, Type, Size, Modified, ...</source>
        <translation>Сортировать по столбцу: Name, Type, Size, Modified, ...</translation>
    </message>
    <message>
        <source>Show only names that match: *.png;*.jpg, or a part of the name.</source>
        <translation>Показывать только подходящие имена: *.png;*.jpg или часть имени.</translation>
    </message>
    <message>
        <source>more than one directory</source>
        <translation>больше одного каталога</translation>
    </message>
</context>
<context>
    <name>Pane</name>
    <message>
        <source>There is no folder %1</source>
        <translation>Папки %1 нет</translation>
    </message>
    <message>
        <source>%1 is not there any more</source>
        <translation>%1 больше не существует</translation>
    </message>
</context>
<context>
    <name>PathBar</name>
    <message>
        <source>Folder</source>
        <translation>Папка</translation>
    </message>
    <message>
        <source>There is no %1</source>
        <translation>%1 не существует</translation>
    </message>
    <message>
        <source>%1 is not a folder</source>
        <translation>%1 — не папка</translation>
    </message>
</context>
<context>
    <name>PlaceWork</name>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>Open in Other Pane</source>
        <translation>Открыть в другой панели</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Переименовать</translation>
    </message>
    <message>
        <source>Remove from Favorites</source>
        <translation>Удалить из избранного</translation>
    </message>
    <message>
        <source>Add to Favorites</source>
        <translation>Добавить в избранное</translation>
    </message>
    <message>
        <source>Mount</source>
        <translation>Подключить</translation>
    </message>
    <message>
        <source>Unmount</source>
        <translation>Отключить</translation>
    </message>
    <message>
        <source>Eject</source>
        <translation>Извлечь</translation>
    </message>
    <message>
        <source>Empty Trash</source>
        <translation>Очистить корзину</translation>
    </message>
    <message>
        <source>Mounting %1 …</source>
        <translation>Подключение %1 …</translation>
    </message>
</context>
<context>
    <name>PropertiesDialog</name>
    <message>
        <source>Properties of %1</source>
        <translation>Свойства: %1</translation>
    </message>
    <message>
        <source>Properties of %1 entries</source>
        <translation>Свойства: объектов %1</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Общие</translation>
    </message>
    <message>
        <source>This page failed: %1</source>
        <translation>Сбой этой страницы: %1</translation>
    </message>
    <message>
        <source>This page failed</source>
        <translation>Сбой этой страницы</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>there is no column %1</source>
        <translation>столбца %1 нет</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 не отвечает</translation>
    </message>
    <message>
        <source>%1: there is no such directory</source>
        <translation>%1: такого каталога нет</translation>
    </message>
    <message>
        <source>%1: not a directory</source>
        <translation>%1: не каталог</translation>
    </message>
</context>
<context>
    <name>Screenshot</name>
    <message>
        <source>cannot write %1: %2</source>
        <translation>не удаётся записать %1: %2</translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Вид</translation>
    </message>
    <message>
        <source>Sorting</source>
        <translation>Сортировка</translation>
    </message>
    <message>
        <source>Sort numbers in names by their value</source>
        <translation>Сортировать числа в именах по значению</translation>
    </message>
    <message>
        <source>Sort as the language does</source>
        <translation>Сортировать по правилам языка</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>Строки</translation>
    </message>
    <message>
        <source>Shade every second row</source>
        <translation>Оттенять каждую вторую строку</translation>
    </message>
    <message>
        <source>Show sizes in bytes</source>
        <translation>Показывать размеры в байтах</translation>
    </message>
    <message>
        <source>Folders with a description of their own</source>
        <translation>Папки с собственным описанием</translation>
    </message>
    <message>
        <source>Use its name</source>
        <translation>Использовать имя из него</translation>
    </message>
    <message>
        <source>Use its icon</source>
        <translation>Использовать значок из него</translation>
    </message>
    <message>
        <source>&amp;Thumbnails</source>
        <translation>&amp;Миниатюры</translation>
    </message>
    <message>
        <source>Show thumbnails</source>
        <translation>Показывать миниатюры</translation>
    </message>
    <message>
        <source>Also on the network</source>
        <translation>И в сети</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Изображения</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Видео</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Музыка</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>Тексты</translation>
    </message>
    <message>
        <source>Documents and other files</source>
        <translation>Документы и другие файлы</translation>
    </message>
    <message>
        <source>&amp;Of:</source>
        <translation>&amp;Для:</translation>
    </message>
    <message>
        <source>Pictures &amp;up to:</source>
        <translation>Изображения д&amp;о:</translation>
    </message>
    <message>
        <source>MB</source>
        <translation>МБ</translation>
    </message>
    <message>
        <source>any size</source>
        <translation>любой размер</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>&amp;Окно</translation>
    </message>
    <message>
        <source>Show the whole path in the title</source>
        <translation>Показывать полный путь в заголовке</translation>
    </message>
    <message>
        <source>Show the slider for the icon size</source>
        <translation>Показывать ползунок размера значков</translation>
    </message>
    <message>
        <source>Show the free space</source>
        <translation>Показывать свободное место</translation>
    </message>
    <message>
        <source>One location bar for both panes</source>
        <translation>Одна строка адреса для обеих панелей</translation>
    </message>
    <message>
        <source>T&amp;ool bar:</source>
        <translation>&amp;Панель инструментов:</translation>
    </message>
    <message>
        <source>Side &amp;panel</source>
        <translation>&amp;Боковая панель</translation>
    </message>
    <message>
        <source>Shown in the side panel:</source>
        <translation>На боковой панели:</translation>
    </message>
    <message>
        <source>Old look</source>
        <translation>Прежний вид</translation>
    </message>
    <message>
        <source>Groups can be collapsed</source>
        <translation>Группы можно сворачивать</translation>
    </message>
    <message>
        <source>&amp;Behaviour</source>
        <translation>&amp;Поведение</translation>
    </message>
    <message>
        <source>Menu of a folder</source>
        <translation>Меню папки</translation>
    </message>
    <message>
        <source>Offer to delete</source>
        <translation>Предлагать удаление</translation>
    </message>
    <message>
        <source>Offer the settings of the view</source>
        <translation>Предлагать настройки вида</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>Корзина</translation>
    </message>
    <message>
        <source>Also for files on the network</source>
        <translation>И для файлов в сети</translation>
    </message>
    <message>
        <source>&amp;Largest size:</source>
        <translation>&amp;Наибольший размер:</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Другое</translation>
    </message>
    <message>
        <source>Open Windows shares among the network resources</source>
        <translation>Открывать ресурсы Windows среди сетевых ресурсов</translation>
    </message>
    <message>
        <source>&amp;Idle services end after:</source>
        <translation>&amp;Службы завершаются без дела через:</translation>
    </message>
    <message>
        <source>s</source>
        <translation>с</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Отмена действий</translation>
    </message>
    <message>
        <source>Open encrypted archives without asking</source>
        <translation>Открывать зашифрованные архивы без вопросов</translation>
    </message>
    <message>
        <source>Name attachments in the subject of a mail</source>
        <translation>Указывать вложения в теме письма</translation>
    </message>
    <message>
        <source>&amp;Applications</source>
        <translation>При&amp;ложения</translation>
    </message>
    <message>
        <source>Sound and video</source>
        <translation>Звук и видео</translation>
    </message>
    <message>
        <source>Development</source>
        <translation>Разработка</translation>
    </message>
    <message>
        <source>Education</source>
        <translation>Образование</translation>
    </message>
    <message>
        <source>Games</source>
        <translation>Игры</translation>
    </message>
    <message>
        <source>Graphics</source>
        <translation>Графика</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Интернет</translation>
    </message>
    <message>
        <source>Office</source>
        <translation>Офис</translation>
    </message>
    <message>
        <source>Science</source>
        <translation>Наука</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Система</translation>
    </message>
    <message>
        <source>Accessories</source>
        <translation>Стандартные</translation>
    </message>
    <message>
        <source>Offered &amp;categories:</source>
        <translation>Предлагаемые &amp;категории:</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Set by the administrator</source>
        <translation>Задано администратором</translation>
    </message>
</context>
<context>
    <name>SidePanel</name>
    <message>
        <source>Places</source>
        <translation>Места</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Папки</translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message>
        <source>%1 free</source>
        <translation>%1 свободно</translation>
    </message>
    <message>
        <source>of %1</source>
        <translation>из %1</translation>
    </message>
    <message>
        <source>Icons: %1</source>
        <translation>Значки: %1</translation>
    </message>
    <message>
        <source>Listing %1 …</source>
        <translation>Чтение %1 …</translation>
    </message>
    <message numerus="yes">
        <source>%Ln entry(s)</source>
        <translation>
            <numerusform>%Ln объект</numerusform>
            <numerusform>%Ln объекта</numerusform>
            <numerusform>%Ln объектов</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>WindowActions</name>
    <message>
        <source>New Window</source>
        <translation>Новое окно</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>Закрыть окно</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Выход</translation>
    </message>
    <message>
        <source>Properties…</source>
        <translation>Свойства…</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Выделить всё</translation>
    </message>
    <message>
        <source>Invert Selection</source>
        <translation>Обратить выделение</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Настройки…</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Таблица</translation>
    </message>
    <message>
        <source>Icons</source>
        <translation>Значки</translation>
    </message>
    <message>
        <source>Larger Icons</source>
        <translation>Крупнее</translation>
    </message>
    <message>
        <source>Smaller Icons</source>
        <translation>Мельче</translation>
    </message>
    <message>
        <source>Usual Size</source>
        <translation>Обычный размер</translation>
    </message>
    <message>
        <source>Hidden Files</source>
        <translation>Скрытые файлы</translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation>Миниатюры</translation>
    </message>
    <message>
        <source>Side Panel</source>
        <translation>Боковая панель</translation>
    </message>
    <message>
        <source>Two Panes</source>
        <translation>Две панели</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Фильтр</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Остановить</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Обновить</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Вперёд</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Вверх</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Домашняя папка</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>Корзина</translation>
    </message>
    <message>
        <source>Add to Favorites</source>
        <translation>Добавить в избранное</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Путь</translation>
    </message>
    <message>
        <source>To the Side Panel</source>
        <translation>К боковой панели</translation>
    </message>
    <message>
        <source>To the Other Pane</source>
        <translation>К другой панели</translation>
    </message>
    <message>
        <source>Find…</source>
        <translation>Найти…</translation>
    </message>
    <message>
        <source>About</source>
        <translation>О программе</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Файл</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Правка</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Вид</translation>
    </message>
    <message>
        <source>Sort By</source>
        <translation>Сортировать по</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation>П&amp;ереход</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Сервис</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Справка</translation>
    </message>
</context>
<context>
    <name>WindowDialogs</name>
    <message>
        <source>%1 is not there any more</source>
        <translation>%1 больше не существует</translation>
    </message>
</context>
</TS>
