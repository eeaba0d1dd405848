<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en_US">
<context>
    <name>Device</name>
    <message>
        <source>form device</source>
        <translation>из прибора</translation>
    </message>
    <message>
        <source>from file</source>
        <translation>из файла</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>изменено</translation>
    </message>
    <message>
        <source>saved in device</source>
        <translation>записано в прибор</translation>
    </message>
    <message>
        <source>periodically requested</source>
        <translation>опрашивается периодически</translation>
    </message>
    <message>
        <source>illegal data value</source>
        <translation>недопустимое значение данных</translation>
    </message>
    <message>
        <source>the device is busy with another request</source>
        <translation>прибор занят другим запросом</translation>
    </message>
    <message>
        <source>request accepted for execution</source>
        <translation>запрос принят к исполнению</translation>
    </message>
    <message>
        <source>device busy</source>
        <translation>прибор занят</translation>
    </message>
    <message>
        <source>unknown answer</source>
        <translation>неизвестный ответ</translation>
    </message>
    <message>
        <source>Template version does not match device version!</source>
        <translation>Версия шаблона не соответствует версии прибора!</translation>
    </message>
    <message>
        <source>Invalid device firmware date (&apos;%1&apos;)</source>
        <translation>Неверная дата прошивки прибора (&apos;%1&apos;)</translation>
    </message>
    <message>
        <source>Device firmware date (%1) is less than template date (%2).</source>
        <translation>Дата прошивки прибора (%1) меньше даты шаблона (%2).</translation>
    </message>
</context>
<context>
    <name>DeviceAddDialog</name>
    <message>
        <source>Select device template...</source>
        <translation>Выбор шаблона прибора...</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>Шаблон</translation>
    </message>
    <message>
        <source>Producer</source>
        <translation>Производитель</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Описание</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Версия</translation>
    </message>
    <message>
        <source>Reset all</source>
        <translation>Сбросить все</translation>
    </message>
    <message>
        <source>Refresh templates list</source>
        <translation>Обновить список шаблонов</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Template deleting</source>
        <translation>Удаление шаблона</translation>
    </message>
    <message>
        <source>Do you want to delete this template?</source>
        <translation>Удалить этот шаблон?</translation>
    </message>
</context>
<context>
    <name>DummyEditor</name>
    <message>
        <source>Can&apos;t open help file</source>
        <translation>Не удалось открыть файл справки</translation>
    </message>
</context>
<context>
    <name>IPPortEditor</name>
    <message>
        <source>IP Address:</source>
        <translation>IP-адрес:</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Проверить</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>Success.</source>
        <translation>Успешно.</translation>
    </message>
    <message>
        <source>Failure: %1.</source>
        <translation>Ошибка: %1.</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>Закрыт</translation>
    </message>
    <message>
        <source>Opened</source>
        <translation>Открыт</translation>
    </message>
</context>
<context>
    <name>LogWidget</name>
    <message>
        <source>Lines:</source>
        <translation>Строк:</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Вверх</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Вниз</translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>За последней</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Очистить</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Сохранить как...</translation>
    </message>
    <message>
        <source>Lines: %1</source>
        <translation>Строк: %1</translation>
    </message>
    <message>
        <source>Logs (*.log);;All files (*.*)</source>
        <translation>Журналы (*.log);;Все файлы (*.*)</translation>
    </message>
    <message>
        <source>Save report</source>
        <translation>Сохранение журнала</translation>
    </message>
    <message>
        <source>Cannot open file for writing log: %1</source>
        <translation>Не удалось записать журнал в файл: %1</translation>
    </message>
    <message>
        <source>/ %1 Log file: %2</source>
        <translation>/ %1 Файл журнала: %2</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Devices</source>
        <translation>Приборы</translation>
    </message>
    <message>
        <source>Configuration comment:</source>
        <translation>Комментарий к конфигурации:</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>Сканирование</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Статистика</translation>
    </message>
    <message>
        <source>Plot</source>
        <translation>График</translation>
    </message>
    <message>
        <source>Plots are not available in this version.</source>
        <translation>Графики в этой версии недоступны.</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Панель инструментов</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Создать</translation>
    </message>
    <message>
        <source>Start an empty configuration</source>
        <translation>Начать пустую конфигурацию</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>Open a configuration file</source>
        <translation>Открыть файл конфигурации</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Save the configuration</source>
        <translation>Сохранить конфигурацию</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Сохранить как</translation>
    </message>
    <message>
        <source>Save the configuration in another file</source>
        <translation>Сохранить конфигурацию в другой файл</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Добавить</translation>
    </message>
    <message>
        <source>Add a port, or devices to the selected port</source>
        <translation>Добавить порт или приборы на выбранный порт</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Remove the selected port or device</source>
        <translation>Удалить выбранный порт или прибор</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>Copy the selected device</source>
        <translation>Копировать выбранный прибор</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Вставить</translation>
    </message>
    <message>
        <source>Paste the copied device on a port, or its values over a device of the same template</source>
        <translation>Вставить скопированный прибор на порт или его значения в прибор того же шаблона</translation>
    </message>
    <message>
        <source>Save Device As Template</source>
        <translation>Сохранить как шаблон</translation>
    </message>
    <message>
        <source>Save the selected device as a template</source>
        <translation>Сохранить выбранный прибор как шаблон</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Program settings</source>
        <translation>Настройки программы</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Справка</translation>
    </message>
    <message>
        <source>The manual (F1)</source>
        <translation>Руководство (F1)</translation>
    </message>
    <message>
        <source>play</source>
        <translation>Опрос</translation>
    </message>
    <message>
        <source>Devices are polled; click to stop polling</source>
        <translation>Идёт опрос приборов; нажмите, чтобы остановить</translation>
    </message>
    <message>
        <source>Version: %1</source>
        <translation>Версия: %1</translation>
    </message>
    <message>
        <source>Ports &amp; Devices</source>
        <translation>Порты и приборы</translation>
    </message>
    <message>
        <source>ports: %1, devices: %2</source>
        <translation>портов: %1, приборов: %2</translation>
    </message>
    <message>
        <source>Port %1</source>
        <translation>Порт %1</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Предупреждение</translation>
    </message>
    <message>
        <source>Not found temlate %1 for device</source>
        <translation>Не найден шаблон %1 для прибора</translation>
    </message>
    <message>
        <source>{copy}</source>
        <translation>{копия}</translation>
    </message>
    <message>
        <source>Do you really want to remove device %1?</source>
        <translation>Удалить прибор %1?</translation>
    </message>
    <message>
        <source>Do you really want to remove port %1?</source>
        <translation>Удалить порт %1 со всеми приборами?</translation>
    </message>
    <message>
        <source>Do you really want to delete ALL items?</source>
        <translation>Удалить ВСЕ порты и приборы?</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Без имени</translation>
    </message>
    <message>
        <source>Config file write error!</source>
        <translation>Ошибка записи файла конфигурации!</translation>
    </message>
    <message>
        <source>You have devices with downloading archive!
Stop download archive and try again.</source>
        <translation>Из приборов выгружается архив!
Остановите выгрузку и повторите.</translation>
    </message>
    <message>
        <source>You have periodically requested devices!
Stop devices requesting and try again.</source>
        <translation>Идёт периодический опрос приборов!
Остановите опрос и повторите.</translation>
    </message>
    <message>
        <source>You have pending read/write operations!
Stop operations and try again.</source>
        <translation>Не завершены операции чтения или записи!
Остановите их и повторите.</translation>
    </message>
    <message>
        <source>Configuration has been modified.
Do you want to save your changes?</source>
        <translation>Конфигурация изменена.
Сохранить изменения?</translation>
    </message>
    <message>
        <source>Device %1 has tags with Not-a-Number value!
To fix them to Null before saving config?</source>
        <translation>У прибора %1 есть параметры со значением «не число»!
Обнулить их перед сохранением конфигурации?</translation>
    </message>
    <message>
        <source>Configuration saved on %1</source>
        <translation>Конфигурация сохранена %1</translation>
    </message>
    <message>
        <source>Save As..</source>
        <translation>Сохранить как..</translation>
    </message>
    <message>
        <source>Configuration files (*.cfg);;All files (*)</source>
        <translation>Файлы конфигурации (*.cfg);;Все файлы (*)</translation>
    </message>
    <message>
        <source>Configuration saved on %1 in file %2</source>
        <translation>Конфигурация сохранена %1 в файл %2</translation>
    </message>
    <message>
        <source>Do you want to save your configuration?</source>
        <translation>Сохранить конфигурацию?</translation>
    </message>
    <message>
        <source>Save statistics</source>
        <translation>Сохранение статистики</translation>
    </message>
    <message>
        <source>Cannot open file for writing statistics log: %1</source>
        <translation>Не удалось записать статистику в файл: %1</translation>
    </message>
    <message>
        <source>Statistics have been successfully saved to file</source>
        <translation>Статистика сохранена в файл</translation>
    </message>
    <message>
        <source>Open cfg..</source>
        <translation>Открыть конфигурацию..</translation>
    </message>
    <message>
        <source>Device %1 has tags with Not-a-Number value!
To fix them to Null before saving template?</source>
        <translation>У прибора %1 есть параметры со значением «не число»!
Обнулить их перед сохранением шаблона?</translation>
    </message>
    <message>
        <source>Confirmation required</source>
        <translation>Требуется подтверждение</translation>
    </message>
    <message>
        <source>Template &apos;%1&apos; already exists. Do you want to overwrite it?</source>
        <translation>Шаблон «%1» уже существует. Заменить его?</translation>
    </message>
    <message>
        <source>Device was saved as template in file %1</source>
        <translation>Прибор сохранён как шаблон в файл %1</translation>
    </message>
    <message>
        <source>device with address %1 already exists on port %2. To add device?</source>
        <translation>устройство с адресом %1 уже есть на порту %2. Добавить устройство?</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Информация</translation>
    </message>
    <message>
        <source>%1 device(s) appended</source>
        <translation>Добавлено устройств: %1</translation>
    </message>
    <message>
        <source>No devices were appended</source>
        <translation>Ни одно устройство не добавлено</translation>
    </message>
</context>
<context>
    <name>Port</name>
    <message>
        <source>Device &apos;%1&apos; cannot be polled: port &apos;%2&apos; polls at most %3 devices</source>
        <translation>Прибор &apos;%1&apos; не может опрашиваться: порт &apos;%2&apos; опрашивает не более %3 приборов</translation>
    </message>
    <message>
        <source>The polling queue of port &apos;%1&apos; is full: request of &apos;%2&apos; dropped</source>
        <translation>Очередь опроса порта &apos;%1&apos; переполнена: запрос &apos;%2&apos; отброшен</translation>
    </message>
    <message>
        <source>Polling of port &apos;%1&apos; stopped before the request of &apos;%2&apos;</source>
        <translation>Опрос порта &apos;%1&apos; остановлен до выполнения запроса &apos;%2&apos;</translation>
    </message>
    <message>
        <source>The request of &apos;%1&apos; waited in the polling queue of port &apos;%2&apos; for more than %3 ms</source>
        <translation>Запрос &apos;%1&apos; ждал в очереди опроса порта &apos;%2&apos; дольше %3 мс</translation>
    </message>
</context>
<context>
    <name>PortEditor</name>
    <message>
        <source>Name:</source>
        <translation>Имя:</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>Тип:</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Включён</translation>
    </message>
    <message>
        <source>Serial</source>
        <translation>Последовательный</translation>
    </message>
    <message>
        <source>TCP (not supported)</source>
        <translation>TCP (не поддерживается)</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Да</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Нет</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Справка</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Применить</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Не сохранять</translation>
    </message>
</context>
<context>
    <name>RTUPortEditor</name>
    <message>
        <source>Serial line</source>
        <translation>Последовательная линия</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Порт:</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Обновить</translation>
    </message>
    <message>
        <source>Baud rate:</source>
        <translation>Скорость:</translation>
    </message>
    <message>
        <source>Data bits:</source>
        <translation>Биты данных:</translation>
    </message>
    <message>
        <source>Parity:</source>
        <translation>Чётность:</translation>
    </message>
    <message>
        <source>Stop bits:</source>
        <translation>Стоповые биты:</translation>
    </message>
    <message>
        <source>Clear the request queue after a timeout</source>
        <translation>Очищать очередь запросов после тайм-аута</translation>
    </message>
    <message>
        <source>Clear the port buffers before each request</source>
        <translation>Очищать буферы порта перед каждым запросом</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Проверить</translation>
    </message>
    <message>
        <source>Raw request</source>
        <translation>Произвольный запрос</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Отправить</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Очистить</translation>
    </message>
    <message>
        <source>N (none)</source>
        <translation>N (нет)</translation>
    </message>
    <message>
        <source>E (even)</source>
        <translation>E (чёт)</translation>
    </message>
    <message>
        <source>O (odd)</source>
        <translation>O (нечёт)</translation>
    </message>
    <message>
        <source>Serial port %1 not exists!</source>
        <translation>Последовательный порт %1 не существует!</translation>
    </message>
    <message>
        <source>Serial port %1 already exists!</source>
        <translation>Последовательный порт %1 уже используется!</translation>
    </message>
    <message>
        <source>Success.</source>
        <translation>Успешно.</translation>
    </message>
    <message>
        <source>Failure: %1.</source>
        <translation>Ошибка: %1.</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>Закрыт</translation>
    </message>
    <message>
        <source>Opened</source>
        <translation>Открыт</translation>
    </message>
    <message>
        <source>Request (hex, the checksum is added):</source>
        <translation>Запрос (hex, CRC добавляется):</translation>
    </message>
    <message>
        <source>The request must be pairs of hexadecimal digits: address, function, data.</source>
        <translation>Запрос — пары шестнадцатеричных цифр: адрес, функция, данные.</translation>
    </message>
    <message>
        <source>The port is busy, try again.</source>
        <translation>Порт занят, повторите попытку.</translation>
    </message>
    <message>
        <source>Reply: %1</source>
        <translation>Ответ: %1</translation>
    </message>
</context>
<context>
    <name>SaveAsTemplateDialog</name>
    <message>
        <source>Save template...</source>
        <translation>Сохранение шаблона...</translation>
    </message>
    <message>
        <source>Path:</source>
        <translation>Путь:</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Имя:</translation>
    </message>
    <message>
        <source>Producer:</source>
        <translation>Производитель:</translation>
    </message>
    <message>
        <source>Comment:</source>
        <translation>Комментарий:</translation>
    </message>
    <message>
        <source>Create template for custom configuration</source>
        <translation>Создать шаблон для произвольной конфигурации</translation>
    </message>
</context>
<context>
    <name>ScanWidget</name>
    <message>
        <source>Ports</source>
        <translation>Порты</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Обновить</translation>
    </message>
    <message>
        <source>Speeds</source>
        <translation>Скорости</translation>
    </message>
    <message>
        <source>Framing</source>
        <translation>Формат кадра</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Режим</translation>
    </message>
    <message>
        <source>Delimiter</source>
        <translation>Разделитель</translation>
    </message>
    <message>
        <source>Functions</source>
        <translation>Функции</translation>
    </message>
    <message>
        <source>Function 17 (report slave id)</source>
        <translation>Функция 17 (идентификатор прибора)</translation>
    </message>
    <message>
        <source>Function 3, register</source>
        <translation>Функция 3, регистр</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Количество</translation>
    </message>
    <message>
        <source>Addresses</source>
        <translation>Адреса</translation>
    </message>
    <message>
        <source>From</source>
        <translation>С</translation>
    </message>
    <message>
        <source>To</source>
        <translation>По</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Начать</translation>
    </message>
    <message>
        <source>Append</source>
        <translation>Добавить в дерево</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Порт</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Адрес</translation>
    </message>
    <message>
        <source>Baudrate</source>
        <translation>Скорость</translation>
    </message>
    <message>
        <source>Reply 3</source>
        <translation>Ответ 3</translation>
    </message>
    <message>
        <source>Reply 17</source>
        <translation>Ответ 17</translation>
    </message>
    <message>
        <source>You have periodically requested devices!
Stop devices requesting and try again.</source>
        <translation>Идёт периодический опрос приборов!
Остановите опрос и повторите.</translation>
    </message>
</context>
<context>
    <name>Scanner</name>
    <message>
        <source>Confirmation required</source>
        <translation>Требуется подтверждение</translation>
    </message>
    <message>
        <source>Error opening port &apos;%1&apos; (%2), continue?</source>
        <translation>Ошибка открытия порта «%1» (%2). Продолжить?</translation>
    </message>
    <message>
        <source>scanning port: %1, speed: %2, slave: %3, total founded: %4</source>
        <translation>порт: %1, скорость: %2, адрес: %3, найдено: %4</translation>
    </message>
    <message>
        <source>Scanning..</source>
        <translation>Сканирование..</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Log flags</source>
        <translation>Уровни журнала</translation>
    </message>
    <message>
        <source>add comments in tree</source>
        <translation>показывать комментарии в дереве</translation>
    </message>
    <message>
        <source>load css styles</source>
        <translation>загружать стили CSS</translation>
    </message>
    <message>
        <source>autosave measurements in file by default</source>
        <translation>по умолчанию сохранять измерения в файл</translation>
    </message>
    <message>
        <source> Font </source>
        <translation> Шрифт </translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>Выбрать...</translation>
    </message>
    <message>
        <source>italic</source>
        <translation>курсив</translation>
    </message>
    <message>
        <source>bold</source>
        <translation>полужирный</translation>
    </message>
    <message>
        <source>Select Font</source>
        <translation>Выбор шрифта</translation>
    </message>
    <message>
        <source>Changes w&apos;ll take effect after the program is restarted.</source>
        <translation>Изменения вступят в силу после перезапуска программы.</translation>
    </message>
</context>
</TS>
