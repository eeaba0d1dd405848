{
    "comment": "Индикатор восьмиканальный Fenn-9S для токовых сигналов с реле",
    "device": {
        "address": 7,
        "enabled": true,
        "name": "Fenn-9S",
        "polling_period": 1000,
        "priority": 10,
        "protocol": "MODBUS_RTU",
        "tags": [
            {
                "access": "ReadWrite",
                "address": "000h",
                "byte_timeout": 0,
                "comment": "Скорость обмена по интерфейсу RS-485",
                "config_group": [
                    "Interface",
                    "Конфигурация интерфейса"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    7
                ],
                "name": "baudrate",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "value": 3,
                "values": {
                    "0": "1200 бит/с",
                    "1": "2400 бит/с",
                    "2": "4800 бит/с",
                    "3": "9600 бит/с",
                    "4": "19200 бит/с",
                    "5": "38400 бит/с",
                    "6": "57600 бит/с",
                    "7": "115200 бит/с"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "001h",
                "byte_timeout": 0,
                "comment": "Контроль четности",
                "config_group": [
                    "Interface",
                    "Конфигурация интерфейса"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    3
                ],
                "name": "parity",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "value": 0,
                "values": {
                    "0": "выключен",
                    "1": "выключен",
                    "2": "по четности",
                    "3": "по нечетности"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "002h",
                "byte_timeout": 0,
                "comment": "Сетевой адрес прибора",
                "config_group": [
                    "Interface",
                    "Конфигурация интерфейса"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    1,
                    247
                ],
                "name": "address",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "int16",
                "value": 7,
                "write_func": 6
            },
            {
                "access": "ReadOnly",
                "address": "005h",
                "byte_timeout": 0,
                "comment": "Маска доступа к записи по интерфейсу (переключатель на плате прибора)",
                "config_group": [
                    "Control",
                    "Управление"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    65535
                ],
                "name": "access",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "1": "Interface",
                    "16": "VisualOutput",
                    "2": "AnalogInput",
                    "256": "SoundOutput",
                    "32": "Control",
                    "4": "DigitalOut",
                    "8": "AnalogOut"
                },
                "write_func": 0
            },
            {
                "access": "ReadWrite",
                "address": "006h",
                "byte_timeout": 0,
                "comment": "Каналы, отображаемые на индикаторе (битовая маска)",
                "config_group": [
                    "VisualOutput",
                    "Индикация"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    255
                ],
                "name": "channels_showmask",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "008h",
                "byte_timeout": 0,
                "comment": "Звуковая сигнализация",
                "config_group": [
                    "SoundOutput",
                    "Звуковая сигнализация"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    3
                ],
                "name": "signal_by_sound",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "выключена",
                    "1": "при нажатии кнопок",
                    "2": "при срабатывании реле",
                    "3": "при нажатии кнопок и срабатывании реле"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "009h",
                "byte_timeout": 0,
                "comment": "Блокировка клавиатуры",
                "config_group": [
                    "Control",
                    "Управление"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "keyboard_lock",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "разблокирована",
                    "1": "заблокирована"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "00Ah",
                "byte_timeout": 0,
                "comment": "Яркость индикатора",
                "config_group": [
                    "VisualOutput",
                    "Индикация"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    4
                ],
                "name": "display_brightness",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "минимальная",
                    "1": "низкая",
                    "2": "средняя",
                    "3": "высокая",
                    "4": "максимальная"
                },
                "write_func": 6
            },
            {
                "access": "WriteOnly",
                "address": "00Fh",
                "byte_timeout": 0,
                "comment": "Восстановление заводских настроек (запись 1)",
                "config_group": [
                    "Control",
                    "Управление"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "restore_default",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 0,
                "request_delay": 70,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "020h",
                "byte_timeout": 0,
                "comment": "Канал 1: диапазон входного тока",
                "config_group": [
                    "AnalogInput",
                    "Вход 1"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    2
                ],
                "name": "input_diap_1",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "(0...5) мА",
                    "1": "(0...20) мА",
                    "2": "(4...20) мА"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "021h",
                "byte_timeout": 0,
                "comment": "Канал 1: число знаков после запятой",
                "config_group": [
                    "AnalogInput",
                    "Вход 1"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    3
                ],
                "name": "decimal_point_1",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "0",
                    "1": "0,0",
                    "2": "0,00",
                    "3": "0,000"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "022h",
                "byte_timeout": 0,
                "comment": "Канал 1: время усреднения, с",
                "config_group": [
                    "AnalogInput",
                    "Вход 1"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    1,
                    60
                ],
                "name": "average_time_1",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "023h",
                "byte_timeout": 0,
                "comment": "Канал 1: единица измерения",
                "config_group": [
                    "AnalogInput",
                    "Вход 1"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    12
                ],
                "name": "units_1",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "нет",
                    "1": "°C",
                    "10": "т",
                    "11": "pH",
                    "12": "мг/л",
                    "2": "%",
                    "3": "мА",
                    "4": "В",
                    "5": "кПа",
                    "6": "МПа",
                    "7": "м",
                    "8": "м³",
                    "9": "м³/ч"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "024h",
                "byte_timeout": 0,
                "comment": "Канал 1: функция преобразования",
                "config_group": [
                    "AnalogInput",
                    "Вход 1"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "sqrt_extraction_1",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "линейная",
                    "1": "с извлечением корня"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "028h",
                "byte_timeout": 0,
                "comment": "Канал 1: нижний предел входного сигнала, мА",
                "config_group": [
                    "AnalogInput",
                    "Вход 1"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    20
                ],
                "name": "input_min_1",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "02Ah",
                "byte_timeout": 0,
                "comment": "Канал 1: верхний предел входного сигнала, мА",
                "config_group": [
                    "AnalogInput",
                    "Вход 1"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    20
                ],
                "name": "input_max_1",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "02Ch",
                "byte_timeout": 0,
                "comment": "Канал 1: нижний предел шкалы индикации",
                "config_group": [
                    "AnalogInput",
                    "Вход 1"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "indication_min_1",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "02Eh",
                "byte_timeout": 0,
                "comment": "Канал 1: верхний предел шкалы индикации",
                "config_group": [
                    "AnalogInput",
                    "Вход 1"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "indication_max_1",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "030h",
                "byte_timeout": 0,
                "comment": "Канал 1: смещение нуля",
                "config_group": [
                    "AnalogInput",
                    "Вход 1"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -999,
                    999
                ],
                "name": "zero_correction_1",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "032h",
                "byte_timeout": 0,
                "comment": "Канал 1: нижний аварийный порог",
                "config_group": [
                    "AnalogInput",
                    "Вход 1"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "alarm_low_1",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "034h",
                "byte_timeout": 0,
                "comment": "Канал 1: верхний аварийный порог",
                "config_group": [
                    "AnalogInput",
                    "Вход 1"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "alarm_high_1",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "040h",
                "byte_timeout": 0,
                "comment": "Канал 2: диапазон входного тока",
                "config_group": [
                    "AnalogInput",
                    "Вход 2"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    2
                ],
                "name": "input_diap_2",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "(0...5) мА",
                    "1": "(0...20) мА",
                    "2": "(4...20) мА"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "041h",
                "byte_timeout": 0,
                "comment": "Канал 2: число знаков после запятой",
                "config_group": [
                    "AnalogInput",
                    "Вход 2"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    3
                ],
                "name": "decimal_point_2",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "0",
                    "1": "0,0",
                    "2": "0,00",
                    "3": "0,000"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "042h",
                "byte_timeout": 0,
                "comment": "Канал 2: время усреднения, с",
                "config_group": [
                    "AnalogInput",
                    "Вход 2"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    1,
                    60
                ],
                "name": "average_time_2",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "043h",
                "byte_timeout": 0,
                "comment": "Канал 2: единица измерения",
                "config_group": [
                    "AnalogInput",
                    "Вход 2"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    12
                ],
                "name": "units_2",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "нет",
                    "1": "°C",
                    "10": "т",
                    "11": "pH",
                    "12": "мг/л",
                    "2": "%",
                    "3": "мА",
                    "4": "В",
                    "5": "кПа",
                    "6": "МПа",
                    "7": "м",
                    "8": "м³",
                    "9": "м³/ч"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "044h",
                "byte_timeout": 0,
                "comment": "Канал 2: функция преобразования",
                "config_group": [
                    "AnalogInput",
                    "Вход 2"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "sqrt_extraction_2",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "линейная",
                    "1": "с извлечением корня"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "048h",
                "byte_timeout": 0,
                "comment": "Канал 2: нижний предел входного сигнала, мА",
                "config_group": [
                    "AnalogInput",
                    "Вход 2"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    20
                ],
                "name": "input_min_2",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "04Ah",
                "byte_timeout": 0,
                "comment": "Канал 2: верхний предел входного сигнала, мА",
                "config_group": [
                    "AnalogInput",
                    "Вход 2"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    20
                ],
                "name": "input_max_2",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "04Ch",
                "byte_timeout": 0,
                "comment": "Канал 2: нижний предел шкалы индикации",
                "config_group": [
                    "AnalogInput",
                    "Вход 2"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "indication_min_2",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "04Eh",
                "byte_timeout": 0,
                "comment": "Канал 2: верхний предел шкалы индикации",
                "config_group": [
                    "AnalogInput",
                    "Вход 2"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "indication_max_2",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "050h",
                "byte_timeout": 0,
                "comment": "Канал 2: смещение нуля",
                "config_group": [
                    "AnalogInput",
                    "Вход 2"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -999,
                    999
                ],
                "name": "zero_correction_2",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "052h",
                "byte_timeout": 0,
                "comment": "Канал 2: нижний аварийный порог",
                "config_group": [
                    "AnalogInput",
                    "Вход 2"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "alarm_low_2",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "054h",
                "byte_timeout": 0,
                "comment": "Канал 2: верхний аварийный порог",
                "config_group": [
                    "AnalogInput",
                    "Вход 2"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "alarm_high_2",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "060h",
                "byte_timeout": 0,
                "comment": "Канал 3: диапазон входного тока",
                "config_group": [
                    "AnalogInput",
                    "Вход 3"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    2
                ],
                "name": "input_diap_3",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "(0...5) мА",
                    "1": "(0...20) мА",
                    "2": "(4...20) мА"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "061h",
                "byte_timeout": 0,
                "comment": "Канал 3: число знаков после запятой",
                "config_group": [
                    "AnalogInput",
                    "Вход 3"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    3
                ],
                "name": "decimal_point_3",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "0",
                    "1": "0,0",
                    "2": "0,00",
                    "3": "0,000"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "062h",
                "byte_timeout": 0,
                "comment": "Канал 3: время усреднения, с",
                "config_group": [
                    "AnalogInput",
                    "Вход 3"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    1,
                    60
                ],
                "name": "average_time_3",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "063h",
                "byte_timeout": 0,
                "comment": "Канал 3: единица измерения",
                "config_group": [
                    "AnalogInput",
                    "Вход 3"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    12
                ],
                "name": "units_3",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "нет",
                    "1": "°C",
                    "10": "т",
                    "11": "pH",
                    "12": "мг/л",
                    "2": "%",
                    "3": "мА",
                    "4": "В",
                    "5": "кПа",
                    "6": "МПа",
                    "7": "м",
                    "8": "м³",
                    "9": "м³/ч"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "064h",
                "byte_timeout": 0,
                "comment": "Канал 3: функция преобразования",
                "config_group": [
                    "AnalogInput",
                    "Вход 3"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "sqrt_extraction_3",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "линейная",
                    "1": "с извлечением корня"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "068h",
                "byte_timeout": 0,
                "comment": "Канал 3: нижний предел входного сигнала, мА",
                "config_group": [
                    "AnalogInput",
                    "Вход 3"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    20
                ],
                "name": "input_min_3",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "06Ah",
                "byte_timeout": 0,
                "comment": "Канал 3: верхний предел входного сигнала, мА",
                "config_group": [
                    "AnalogInput",
                    "Вход 3"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    20
                ],
                "name": "input_max_3",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "06Ch",
                "byte_timeout": 0,
                "comment": "Канал 3: нижний предел шкалы индикации",
                "config_group": [
                    "AnalogInput",
                    "Вход 3"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "indication_min_3",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "06Eh",
                "byte_timeout": 0,
                "comment": "Канал 3: верхний предел шкалы индикации",
                "config_group": [
                    "AnalogInput",
                    "Вход 3"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "indication_max_3",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "070h",
                "byte_timeout": 0,
                "comment": "Канал 3: смещение нуля",
                "config_group": [
                    "AnalogInput",
                    "Вход 3"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -999,
                    999
                ],
                "name": "zero_correction_3",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "072h",
                "byte_timeout": 0,
                "comment": "Канал 3: нижний аварийный порог",
                "config_group": [
                    "AnalogInput",
                    "Вход 3"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "alarm_low_3",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "074h",
                "byte_timeout": 0,
                "comment": "Канал 3: верхний аварийный порог",
                "config_group": [
                    "AnalogInput",
                    "Вход 3"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "alarm_high_3",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "080h",
                "byte_timeout": 0,
                "comment": "Канал 4: диапазон входного тока",
                "config_group": [
                    "AnalogInput",
                    "Вход 4"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    2
                ],
                "name": "input_diap_4",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "(0...5) мА",
                    "1": "(0...20) мА",
                    "2": "(4...20) мА"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "081h",
                "byte_timeout": 0,
                "comment": "Канал 4: число знаков после запятой",
                "config_group": [
                    "AnalogInput",
                    "Вход 4"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    3
                ],
                "name": "decimal_point_4",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "0",
                    "1": "0,0",
                    "2": "0,00",
                    "3": "0,000"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "082h",
                "byte_timeout": 0,
                "comment": "Канал 4: время усреднения, с",
                "config_group": [
                    "AnalogInput",
                    "Вход 4"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    1,
                    60
                ],
                "name": "average_time_4",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "083h",
                "byte_timeout": 0,
                "comment": "Канал 4: единица измерения",
                "config_group": [
                    "AnalogInput",
                    "Вход 4"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    12
                ],
                "name": "units_4",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "нет",
                    "1": "°C",
                    "10": "т",
                    "11": "pH",
                    "12": "мг/л",
                    "2": "%",
                    "3": "мА",
                    "4": "В",
                    "5": "кПа",
                    "6": "МПа",
                    "7": "м",
                    "8": "м³",
                    "9": "м³/ч"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "084h",
                "byte_timeout": 0,
                "comment": "Канал 4: функция преобразования",
                "config_group": [
                    "AnalogInput",
                    "Вход 4"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "sqrt_extraction_4",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "линейная",
                    "1": "с извлечением корня"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "088h",
                "byte_timeout": 0,
                "comment": "Канал 4: нижний предел входного сигнала, мА",
                "config_group": [
                    "AnalogInput",
                    "Вход 4"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    20
                ],
                "name": "input_min_4",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "08Ah",
                "byte_timeout": 0,
                "comment": "Канал 4: верхний предел входного сигнала, мА",
                "config_group": [
                    "AnalogInput",
                    "Вход 4"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    20
                ],
                "name": "input_max_4",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "08Ch",
                "byte_timeout": 0,
                "comment": "Канал 4: нижний предел шкалы индикации",
                "config_group": [
                    "AnalogInput",
                    "Вход 4"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "indication_min_4",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "08Eh",
                "byte_timeout": 0,
                "comment": "Канал 4: верхний предел шкалы индикации",
                "config_group": [
                    "AnalogInput",
                    "Вход 4"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "indication_max_4",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "090h",
                "byte_timeout": 0,
                "comment": "Канал 4: смещение нуля",
                "config_group": [
                    "AnalogInput",
                    "Вход 4"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -999,
                    999
                ],
                "name": "zero_correction_4",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "092h",
                "byte_timeout": 0,
                "comment": "Канал 4: нижний аварийный порог",
                "config_group": [
                    "AnalogInput",
                    "Вход 4"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "alarm_low_4",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "094h",
                "byte_timeout": 0,
                "comment": "Канал 4: верхний аварийный порог",
                "config_group": [
                    "AnalogInput",
                    "Вход 4"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "alarm_high_4",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "0A0h",
                "byte_timeout": 0,
                "comment": "Канал 5: диапазон входного тока",
                "config_group": [
                    "AnalogInput",
                    "Вход 5"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    2
                ],
                "name": "input_diap_5",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "(0...5) мА",
                    "1": "(0...20) мА",
                    "2": "(4...20) мА"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "0A1h",
                "byte_timeout": 0,
                "comment": "Канал 5: число знаков после запятой",
                "config_group": [
                    "AnalogInput",
                    "Вход 5"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    3
                ],
                "name": "decimal_point_5",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "0",
                    "1": "0,0",
                    "2": "0,00",
                    "3": "0,000"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "0A2h",
                "byte_timeout": 0,
                "comment": "Канал 5: время усреднения, с",
                "config_group": [
                    "AnalogInput",
                    "Вход 5"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    1,
                    60
                ],
                "name": "average_time_5",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "0A3h",
                "byte_timeout": 0,
                "comment": "Канал 5: единица измерения",
                "config_group": [
                    "AnalogInput",
                    "Вход 5"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    12
                ],
                "name": "units_5",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "нет",
                    "1": "°C",
                    "10": "т",
                    "11": "pH",
                    "12": "мг/л",
                    "2": "%",
                    "3": "мА",
                    "4": "В",
                    "5": "кПа",
                    "6": "МПа",
                    "7": "м",
                    "8": "м³",
                    "9": "м³/ч"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "0A4h",
                "byte_timeout": 0,
                "comment": "Канал 5: функция преобразования",
                "config_group": [
                    "AnalogInput",
                    "Вход 5"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "sqrt_extraction_5",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "линейная",
                    "1": "с извлечением корня"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "0A8h",
                "byte_timeout": 0,
                "comment": "Канал 5: нижний предел входного сигнала, мА",
                "config_group": [
                    "AnalogInput",
                    "Вход 5"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    20
                ],
                "name": "input_min_5",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "0AAh",
                "byte_timeout": 0,
                "comment": "Канал 5: верхний предел входного сигнала, мА",
                "config_group": [
                    "AnalogInput",
                    "Вход 5"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    20
                ],
                "name": "input_max_5",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "0ACh",
                "byte_timeout": 0,
                "comment": "Канал 5: нижний предел шкалы индикации",
                "config_group": [
                    "AnalogInput",
                    "Вход 5"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "indication_min_5",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "0AEh",
                "byte_timeout": 0,
                "comment": "Канал 5: верхний предел шкалы индикации",
                "config_group": [
                    "AnalogInput",
                    "Вход 5"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "indication_max_5",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "0B0h",
                "byte_timeout": 0,
                "comment": "Канал 5: смещение нуля",
                "config_group": [
                    "AnalogInput",
                    "Вход 5"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -999,
                    999
                ],
                "name": "zero_correction_5",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "0B2h",
                "byte_timeout": 0,
                "comment": "Канал 5: нижний аварийный порог",
                "config_group": [
                    "AnalogInput",
                    "Вход 5"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "alarm_low_5",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "0B4h",
                "byte_timeout": 0,
                "comment": "Канал 5: верхний аварийный порог",
                "config_group": [
                    "AnalogInput",
                    "Вход 5"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "alarm_high_5",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "0C0h",
                "byte_timeout": 0,
                "comment": "Канал 6: диапазон входного тока",
                "config_group": [
                    "AnalogInput",
                    "Вход 6"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    2
                ],
                "name": "input_diap_6",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "(0...5) мА",
                    "1": "(0...20) мА",
                    "2": "(4...20) мА"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "0C1h",
                "byte_timeout": 0,
                "comment": "Канал 6: число знаков после запятой",
                "config_group": [
                    "AnalogInput",
                    "Вход 6"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    3
                ],
                "name": "decimal_point_6",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "0",
                    "1": "0,0",
                    "2": "0,00",
                    "3": "0,000"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "0C2h",
                "byte_timeout": 0,
                "comment": "Канал 6: время усреднения, с",
                "config_group": [
                    "AnalogInput",
                    "Вход 6"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    1,
                    60
                ],
                "name": "average_time_6",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "0C3h",
                "byte_timeout": 0,
                "comment": "Канал 6: единица измерения",
                "config_group": [
                    "AnalogInput",
                    "Вход 6"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    12
                ],
                "name": "units_6",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "нет",
                    "1": "°C",
                    "10": "т",
                    "11": "pH",
                    "12": "мг/л",
                    "2": "%",
                    "3": "мА",
                    "4": "В",
                    "5": "кПа",
                    "6": "МПа",
                    "7": "м",
                    "8": "м³",
                    "9": "м³/ч"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "0C4h",
                "byte_timeout": 0,
                "comment": "Канал 6: функция преобразования",
                "config_group": [
                    "AnalogInput",
                    "Вход 6"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "sqrt_extraction_6",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "линейная",
                    "1": "с извлечением корня"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "0C8h",
                "byte_timeout": 0,
                "comment": "Канал 6: нижний предел входного сигнала, мА",
                "config_group": [
                    "AnalogInput",
                    "Вход 6"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    20
                ],
                "name": "input_min_6",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "0CAh",
                "byte_timeout": 0,
                "comment": "Канал 6: верхний предел входного сигнала, мА",
                "config_group": [
                    "AnalogInput",
                    "Вход 6"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    20
                ],
                "name": "input_max_6",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "0CCh",
                "byte_timeout": 0,
                "comment": "Канал 6: нижний предел шкалы индикации",
                "config_group": [
                    "AnalogInput",
                    "Вход 6"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "indication_min_6",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "0CEh",
                "byte_timeout": 0,
                "comment": "Канал 6: верхний предел шкалы индикации",
                "config_group": [
                    "AnalogInput",
                    "Вход 6"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "indication_max_6",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "0D0h",
                "byte_timeout": 0,
                "comment": "Канал 6: смещение нуля",
                "config_group": [
                    "AnalogInput",
                    "Вход 6"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -999,
                    999
                ],
                "name": "zero_correction_6",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "0D2h",
                "byte_timeout": 0,
                "comment": "Канал 6: нижний аварийный порог",
                "config_group": [
                    "AnalogInput",
                    "Вход 6"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "alarm_low_6",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "0D4h",
                "byte_timeout": 0,
                "comment": "Канал 6: верхний аварийный порог",
                "config_group": [
                    "AnalogInput",
                    "Вход 6"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "alarm_high_6",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "0E0h",
                "byte_timeout": 0,
                "comment": "Канал 7: диапазон входного тока",
                "config_group": [
                    "AnalogInput",
                    "Вход 7"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    2
                ],
                "name": "input_diap_7",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "(0...5) мА",
                    "1": "(0...20) мА",
                    "2": "(4...20) мА"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "0E1h",
                "byte_timeout": 0,
                "comment": "Канал 7: число знаков после запятой",
                "config_group": [
                    "AnalogInput",
                    "Вход 7"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    3
                ],
                "name": "decimal_point_7",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "0",
                    "1": "0,0",
                    "2": "0,00",
                    "3": "0,000"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "0E2h",
                "byte_timeout": 0,
                "comment": "Канал 7: время усреднения, с",
                "config_group": [
                    "AnalogInput",
                    "Вход 7"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    1,
                    60
                ],
                "name": "average_time_7",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "0E3h",
                "byte_timeout": 0,
                "comment": "Канал 7: единица измерения",
                "config_group": [
                    "AnalogInput",
                    "Вход 7"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    12
                ],
                "name": "units_7",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "нет",
                    "1": "°C",
                    "10": "т",
                    "11": "pH",
                    "12": "мг/л",
                    "2": "%",
                    "3": "мА",
                    "4": "В",
                    "5": "кПа",
                    "6": "МПа",
                    "7": "м",
                    "8": "м³",
                    "9": "м³/ч"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "0E4h",
                "byte_timeout": 0,
                "comment": "Канал 7: функция преобразования",
                "config_group": [
                    "AnalogInput",
                    "Вход 7"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "sqrt_extraction_7",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "линейная",
                    "1": "с извлечением корня"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "0E8h",
                "byte_timeout": 0,
                "comment": "Канал 7: нижний предел входного сигнала, мА",
                "config_group": [
                    "AnalogInput",
                    "Вход 7"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    20
                ],
                "name": "input_min_7",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "0EAh",
                "byte_timeout": 0,
                "comment": "Канал 7: верхний предел входного сигнала, мА",
                "config_group": [
                    "AnalogInput",
                    "Вход 7"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    20
                ],
                "name": "input_max_7",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "0ECh",
                "byte_timeout": 0,
                "comment": "Канал 7: нижний предел шкалы индикации",
                "config_group": [
                    "AnalogInput",
                    "Вход 7"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "indication_min_7",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "0EEh",
                "byte_timeout": 0,
                "comment": "Канал 7: верхний предел шкалы индикации",
                "config_group": [
                    "AnalogInput",
                    "Вход 7"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "indication_max_7",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "0F0h",
                "byte_timeout": 0,
                "comment": "Канал 7: смещение нуля",
                "config_group": [
                    "AnalogInput",
                    "Вход 7"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -999,
                    999
                ],
                "name": "zero_correction_7",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "0F2h",
                "byte_timeout": 0,
                "comment": "Канал 7: нижний аварийный порог",
                "config_group": [
                    "AnalogInput",
                    "Вход 7"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "alarm_low_7",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "0F4h",
                "byte_timeout": 0,
                "comment": "Канал 7: верхний аварийный порог",
                "config_group": [
                    "AnalogInput",
                    "Вход 7"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "alarm_high_7",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "100h",
                "byte_timeout": 0,
                "comment": "Канал 8: диапазон входного тока",
                "config_group": [
                    "AnalogInput",
                    "Вход 8"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    2
                ],
                "name": "input_diap_8",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "(0...5) мА",
                    "1": "(0...20) мА",
                    "2": "(4...20) мА"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "101h",
                "byte_timeout": 0,
                "comment": "Канал 8: число знаков после запятой",
                "config_group": [
                    "AnalogInput",
                    "Вход 8"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    3
                ],
                "name": "decimal_point_8",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "0",
                    "1": "0,0",
                    "2": "0,00",
                    "3": "0,000"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "102h",
                "byte_timeout": 0,
                "comment": "Канал 8: время усреднения, с",
                "config_group": [
                    "AnalogInput",
                    "Вход 8"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    1,
                    60
                ],
                "name": "average_time_8",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "103h",
                "byte_timeout": 0,
                "comment": "Канал 8: единица измерения",
                "config_group": [
                    "AnalogInput",
                    "Вход 8"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    12
                ],
                "name": "units_8",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "нет",
                    "1": "°C",
                    "10": "т",
                    "11": "pH",
                    "12": "мг/л",
                    "2": "%",
                    "3": "мА",
                    "4": "В",
                    "5": "кПа",
                    "6": "МПа",
                    "7": "м",
                    "8": "м³",
                    "9": "м³/ч"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "104h",
                "byte_timeout": 0,
                "comment": "Канал 8: функция преобразования",
                "config_group": [
                    "AnalogInput",
                    "Вход 8"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "sqrt_extraction_8",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "линейная",
                    "1": "с извлечением корня"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "108h",
                "byte_timeout": 0,
                "comment": "Канал 8: нижний предел входного сигнала, мА",
                "config_group": [
                    "AnalogInput",
                    "Вход 8"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    20
                ],
                "name": "input_min_8",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "10Ah",
                "byte_timeout": 0,
                "comment": "Канал 8: верхний предел входного сигнала, мА",
                "config_group": [
                    "AnalogInput",
                    "Вход 8"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    20
                ],
                "name": "input_max_8",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "10Ch",
                "byte_timeout": 0,
                "comment": "Канал 8: нижний предел шкалы индикации",
                "config_group": [
                    "AnalogInput",
                    "Вход 8"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "indication_min_8",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "10Eh",
                "byte_timeout": 0,
                "comment": "Канал 8: верхний предел шкалы индикации",
                "config_group": [
                    "AnalogInput",
                    "Вход 8"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "indication_max_8",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "110h",
                "byte_timeout": 0,
                "comment": "Канал 8: смещение нуля",
                "config_group": [
                    "AnalogInput",
                    "Вход 8"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -999,
                    999
                ],
                "name": "zero_correction_8",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "112h",
                "byte_timeout": 0,
                "comment": "Канал 8: нижний аварийный порог",
                "config_group": [
                    "AnalogInput",
                    "Вход 8"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "alarm_low_8",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "114h",
                "byte_timeout": 0,
                "comment": "Канал 8: верхний аварийный порог",
                "config_group": [
                    "AnalogInput",
                    "Вход 8"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "alarm_high_8",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "140h",
                "byte_timeout": 0,
                "comment": "Реле 1: функция",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    2
                ],
                "name": "relay1_function",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "выключено",
                    "1": "включение выше уставки",
                    "2": "включение ниже уставки"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "141h",
                "byte_timeout": 0,
                "comment": "Реле 1: контролируемый параметр",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    8
                ],
                "name": "relay1_binding",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Канал 1",
                    "1": "Канал 2",
                    "2": "Канал 3",
                    "3": "Канал 4",
                    "4": "Канал 5",
                    "5": "Канал 6",
                    "6": "Канал 7",
                    "7": "Канал 8",
                    "8": "Неисправность"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "142h",
                "byte_timeout": 0,
                "comment": "Реле 1: задержка включения, с",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    255
                ],
                "name": "relay1_on_delay",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "143h",
                "byte_timeout": 0,
                "comment": "Реле 1: задержка выключения, с",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    255
                ],
                "name": "relay1_off_delay",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "144h",
                "byte_timeout": 0,
                "comment": "Реле 1: уставка",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "relay1_setpoint",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "146h",
                "byte_timeout": 0,
                "comment": "Реле 1: гистерезис",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    9999
                ],
                "name": "relay1_hysteresis",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "148h",
                "byte_timeout": 0,
                "comment": "Реле 2: функция",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    2
                ],
                "name": "relay2_function",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "выключено",
                    "1": "включение выше уставки",
                    "2": "включение ниже уставки"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "149h",
                "byte_timeout": 0,
                "comment": "Реле 2: контролируемый параметр",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    8
                ],
                "name": "relay2_binding",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Канал 1",
                    "1": "Канал 2",
                    "2": "Канал 3",
                    "3": "Канал 4",
                    "4": "Канал 5",
                    "5": "Канал 6",
                    "6": "Канал 7",
                    "7": "Канал 8",
                    "8": "Неисправность"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "14Ah",
                "byte_timeout": 0,
                "comment": "Реле 2: задержка включения, с",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    255
                ],
                "name": "relay2_on_delay",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "14Bh",
                "byte_timeout": 0,
                "comment": "Реле 2: задержка выключения, с",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    255
                ],
                "name": "relay2_off_delay",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "14Ch",
                "byte_timeout": 0,
                "comment": "Реле 2: уставка",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "relay2_setpoint",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "14Eh",
                "byte_timeout": 0,
                "comment": "Реле 2: гистерезис",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    9999
                ],
                "name": "relay2_hysteresis",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "150h",
                "byte_timeout": 0,
                "comment": "Реле 3: функция",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    2
                ],
                "name": "relay3_function",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "выключено",
                    "1": "включение выше уставки",
                    "2": "включение ниже уставки"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "151h",
                "byte_timeout": 0,
                "comment": "Реле 3: контролируемый параметр",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    8
                ],
                "name": "relay3_binding",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Канал 1",
                    "1": "Канал 2",
                    "2": "Канал 3",
                    "3": "Канал 4",
                    "4": "Канал 5",
                    "5": "Канал 6",
                    "6": "Канал 7",
                    "7": "Канал 8",
                    "8": "Неисправность"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "152h",
                "byte_timeout": 0,
                "comment": "Реле 3: задержка включения, с",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    255
                ],
                "name": "relay3_on_delay",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "153h",
                "byte_timeout": 0,
                "comment": "Реле 3: задержка выключения, с",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    255
                ],
                "name": "relay3_off_delay",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "154h",
                "byte_timeout": 0,
                "comment": "Реле 3: уставка",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "relay3_setpoint",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "156h",
                "byte_timeout": 0,
                "comment": "Реле 3: гистерезис",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    9999
                ],
                "name": "relay3_hysteresis",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "158h",
                "byte_timeout": 0,
                "comment": "Реле 4: функция",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    2
                ],
                "name": "relay4_function",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "выключено",
                    "1": "включение выше уставки",
                    "2": "включение ниже уставки"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "159h",
                "byte_timeout": 0,
                "comment": "Реле 4: контролируемый параметр",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    8
                ],
                "name": "relay4_binding",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Канал 1",
                    "1": "Канал 2",
                    "2": "Канал 3",
                    "3": "Канал 4",
                    "4": "Канал 5",
                    "5": "Канал 6",
                    "6": "Канал 7",
                    "7": "Канал 8",
                    "8": "Неисправность"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "15Ah",
                "byte_timeout": 0,
                "comment": "Реле 4: задержка включения, с",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    255
                ],
                "name": "relay4_on_delay",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "15Bh",
                "byte_timeout": 0,
                "comment": "Реле 4: задержка выключения, с",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    255
                ],
                "name": "relay4_off_delay",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "15Ch",
                "byte_timeout": 0,
                "comment": "Реле 4: уставка",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "relay4_setpoint",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "15Eh",
                "byte_timeout": 0,
                "comment": "Реле 4: гистерезис",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    9999
                ],
                "name": "relay4_hysteresis",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "160h",
                "byte_timeout": 0,
                "comment": "Реле 5: функция",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    2
                ],
                "name": "relay5_function",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "выключено",
                    "1": "включение выше уставки",
                    "2": "включение ниже уставки"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "161h",
                "byte_timeout": 0,
                "comment": "Реле 5: контролируемый параметр",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    8
                ],
                "name": "relay5_binding",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Канал 1",
                    "1": "Канал 2",
                    "2": "Канал 3",
                    "3": "Канал 4",
                    "4": "Канал 5",
                    "5": "Канал 6",
                    "6": "Канал 7",
                    "7": "Канал 8",
                    "8": "Неисправность"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "162h",
                "byte_timeout": 0,
                "comment": "Реле 5: задержка включения, с",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    255
                ],
                "name": "relay5_on_delay",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "163h",
                "byte_timeout": 0,
                "comment": "Реле 5: задержка выключения, с",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    255
                ],
                "name": "relay5_off_delay",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "164h",
                "byte_timeout": 0,
                "comment": "Реле 5: уставка",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "relay5_setpoint",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "166h",
                "byte_timeout": 0,
                "comment": "Реле 5: гистерезис",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    9999
                ],
                "name": "relay5_hysteresis",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "168h",
                "byte_timeout": 0,
                "comment": "Реле 6: функция",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    2
                ],
                "name": "relay6_function",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "выключено",
                    "1": "включение выше уставки",
                    "2": "включение ниже уставки"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "169h",
                "byte_timeout": 0,
                "comment": "Реле 6: контролируемый параметр",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    8
                ],
                "name": "relay6_binding",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Канал 1",
                    "1": "Канал 2",
                    "2": "Канал 3",
                    "3": "Канал 4",
                    "4": "Канал 5",
                    "5": "Канал 6",
                    "6": "Канал 7",
                    "7": "Канал 8",
                    "8": "Неисправность"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "16Ah",
                "byte_timeout": 0,
                "comment": "Реле 6: задержка включения, с",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    255
                ],
                "name": "relay6_on_delay",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "16Bh",
                "byte_timeout": 0,
                "comment": "Реле 6: задержка выключения, с",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    255
                ],
                "name": "relay6_off_delay",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "16Ch",
                "byte_timeout": 0,
                "comment": "Реле 6: уставка",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "relay6_setpoint",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "16Eh",
                "byte_timeout": 0,
                "comment": "Реле 6: гистерезис",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    9999
                ],
                "name": "relay6_hysteresis",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "170h",
                "byte_timeout": 0,
                "comment": "Реле 7: функция",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    2
                ],
                "name": "relay7_function",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "выключено",
                    "1": "включение выше уставки",
                    "2": "включение ниже уставки"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "171h",
                "byte_timeout": 0,
                "comment": "Реле 7: контролируемый параметр",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    8
                ],
                "name": "relay7_binding",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Канал 1",
                    "1": "Канал 2",
                    "2": "Канал 3",
                    "3": "Канал 4",
                    "4": "Канал 5",
                    "5": "Канал 6",
                    "6": "Канал 7",
                    "7": "Канал 8",
                    "8": "Неисправность"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "172h",
                "byte_timeout": 0,
                "comment": "Реле 7: задержка включения, с",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    255
                ],
                "name": "relay7_on_delay",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "173h",
                "byte_timeout": 0,
                "comment": "Реле 7: задержка выключения, с",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    255
                ],
                "name": "relay7_off_delay",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "174h",
                "byte_timeout": 0,
                "comment": "Реле 7: уставка",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "relay7_setpoint",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "176h",
                "byte_timeout": 0,
                "comment": "Реле 7: гистерезис",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    9999
                ],
                "name": "relay7_hysteresis",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "178h",
                "byte_timeout": 0,
                "comment": "Реле 8: функция",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    2
                ],
                "name": "relay8_function",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "выключено",
                    "1": "включение выше уставки",
                    "2": "включение ниже уставки"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "179h",
                "byte_timeout": 0,
                "comment": "Реле 8: контролируемый параметр",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    8
                ],
                "name": "relay8_binding",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Канал 1",
                    "1": "Канал 2",
                    "2": "Канал 3",
                    "3": "Канал 4",
                    "4": "Канал 5",
                    "5": "Канал 6",
                    "6": "Канал 7",
                    "7": "Канал 8",
                    "8": "Неисправность"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "17Ah",
                "byte_timeout": 0,
                "comment": "Реле 8: задержка включения, с",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    255
                ],
                "name": "relay8_on_delay",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "17Bh",
                "byte_timeout": 0,
                "comment": "Реле 8: задержка выключения, с",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    255
                ],
                "name": "relay8_off_delay",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "17Ch",
                "byte_timeout": 0,
                "comment": "Реле 8: уставка",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "relay8_setpoint",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "17Eh",
                "byte_timeout": 0,
                "comment": "Реле 8: гистерезис",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    9999
                ],
                "name": "relay8_hysteresis",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "180h",
                "byte_timeout": 0,
                "comment": "Токовый выход 1: диапазон",
                "config_group": [
                    "AnalogOut",
                    "Токовый выход 1"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    2
                ],
                "name": "current_output1_diap",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "(0...5) мА",
                    "1": "(0...20) мА",
                    "2": "(4...20) мА"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "181h",
                "byte_timeout": 0,
                "comment": "Токовый выход 1: параметр",
                "config_group": [
                    "AnalogOut",
                    "Токовый выход 1"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    7
                ],
                "name": "current_output1_binding",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Канал 1",
                    "1": "Канал 2",
                    "2": "Канал 3",
                    "3": "Канал 4",
                    "4": "Канал 5",
                    "5": "Канал 6",
                    "6": "Канал 7",
                    "7": "Канал 8"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "182h",
                "byte_timeout": 0,
                "comment": "Токовый выход 1: значение параметра в начале диапазона",
                "config_group": [
                    "AnalogOut",
                    "Токовый выход 1"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "current_output1_min_ip",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "184h",
                "byte_timeout": 0,
                "comment": "Токовый выход 1: значение параметра в конце диапазона",
                "config_group": [
                    "AnalogOut",
                    "Токовый выход 1"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "current_output1_max_ip",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "188h",
                "byte_timeout": 0,
                "comment": "Токовый выход 2: диапазон",
                "config_group": [
                    "AnalogOut",
                    "Токовый выход 2"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    2
                ],
                "name": "current_output2_diap",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "(0...5) мА",
                    "1": "(0...20) мА",
                    "2": "(4...20) мА"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "189h",
                "byte_timeout": 0,
                "comment": "Токовый выход 2: параметр",
                "config_group": [
                    "AnalogOut",
                    "Токовый выход 2"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    7
                ],
                "name": "current_output2_binding",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Канал 1",
                    "1": "Канал 2",
                    "2": "Канал 3",
                    "3": "Канал 4",
                    "4": "Канал 5",
                    "5": "Канал 6",
                    "6": "Канал 7",
                    "7": "Канал 8"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "18Ah",
                "byte_timeout": 0,
                "comment": "Токовый выход 2: значение параметра в начале диапазона",
                "config_group": [
                    "AnalogOut",
                    "Токовый выход 2"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "current_output2_min_ip",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "18Ch",
                "byte_timeout": 0,
                "comment": "Токовый выход 2: значение параметра в конце диапазона",
                "config_group": [
                    "AnalogOut",
                    "Токовый выход 2"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "current_output2_max_ip",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadOnly",
                "address": "190h",
                "array_size": 14,
                "byte_timeout": 0,
                "byteorder": "1032547698!1032",
                "byteorder_enabled": true,
                "comment": "Заводской номер и дата выпуска (14 символов)",
                "config_group": [
                    "Service",
                    "Сервис"
                ],
                "device_type": "bytearray",
                "enabled": true,
                "level_group": 0,
                "name": "serial_number",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "200h",
                "byte_timeout": 0,
                "comment": "Канал 1: результат измерения",
                "config_group": [
                    "Channel",
                    "ИП 1"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "ch1_value",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 4,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "202h",
                "byte_timeout": 0,
                "comment": "Канал 1: входной ток, мА",
                "config_group": [
                    "Channel",
                    "ИП 1"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    24
                ],
                "name": "ch1_I_value",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 4,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "204h",
                "byte_timeout": 0,
                "comment": "Канал 2: результат измерения",
                "config_group": [
                    "Channel",
                    "ИП 2"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "ch2_value",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 4,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "206h",
                "byte_timeout": 0,
                "comment": "Канал 2: входной ток, мА",
                "config_group": [
                    "Channel",
                    "ИП 2"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    24
                ],
                "name": "ch2_I_value",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 4,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "208h",
                "byte_timeout": 0,
                "comment": "Канал 3: результат измерения",
                "config_group": [
                    "Channel",
                    "ИП 3"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "ch3_value",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 4,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "20Ah",
                "byte_timeout": 0,
                "comment": "Канал 3: входной ток, мА",
                "config_group": [
                    "Channel",
                    "ИП 3"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    24
                ],
                "name": "ch3_I_value",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 4,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "20Ch",
                "byte_timeout": 0,
                "comment": "Канал 4: результат измерения",
                "config_group": [
                    "Channel",
                    "ИП 4"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "ch4_value",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 4,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "20Eh",
                "byte_timeout": 0,
                "comment": "Канал 4: входной ток, мА",
                "config_group": [
                    "Channel",
                    "ИП 4"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    24
                ],
                "name": "ch4_I_value",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 4,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "210h",
                "byte_timeout": 0,
                "comment": "Канал 5: результат измерения",
                "config_group": [
                    "Channel",
                    "ИП 5"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "ch5_value",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 4,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "212h",
                "byte_timeout": 0,
                "comment": "Канал 5: входной ток, мА",
                "config_group": [
                    "Channel",
                    "ИП 5"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    24
                ],
                "name": "ch5_I_value",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 4,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "214h",
                "byte_timeout": 0,
                "comment": "Канал 6: результат измерения",
                "config_group": [
                    "Channel",
                    "ИП 6"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "ch6_value",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 4,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "216h",
                "byte_timeout": 0,
                "comment": "Канал 6: входной ток, мА",
                "config_group": [
                    "Channel",
                    "ИП 6"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    24
                ],
                "name": "ch6_I_value",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 4,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "218h",
                "byte_timeout": 0,
                "comment": "Канал 7: результат измерения",
                "config_group": [
                    "Channel",
                    "ИП 7"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "ch7_value",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 4,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "21Ah",
                "byte_timeout": 0,
                "comment": "Канал 7: входной ток, мА",
                "config_group": [
                    "Channel",
                    "ИП 7"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    24
                ],
                "name": "ch7_I_value",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 4,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "21Ch",
                "byte_timeout": 0,
                "comment": "Канал 8: результат измерения",
                "config_group": [
                    "Channel",
                    "ИП 8"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "ch8_value",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 4,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "21Eh",
                "byte_timeout": 0,
                "comment": "Канал 8: входной ток, мА",
                "config_group": [
                    "Channel",
                    "ИП 8"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    24
                ],
                "name": "ch8_I_value",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 4,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "220h",
                "byte_timeout": 0,
                "comment": "Ток на токовом выходе 1, мА",
                "config_group": [
                    "Channel",
                    "Токовый выход 1"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    24
                ],
                "name": "ch_current_output1",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 4,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "222h",
                "byte_timeout": 0,
                "comment": "Ток на токовом выходе 2, мА",
                "config_group": [
                    "Channel",
                    "Токовый выход 2"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    24
                ],
                "name": "ch_current_output2",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 4,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "224h",
                "byte_timeout": 0,
                "comment": "Слово ошибок прибора: бит N-1 - обрыв входа N",
                "config_group": [
                    "Channel",
                    "Состояние"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    65535
                ],
                "name": "error",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 4,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "225h",
                "byte_timeout": 0,
                "comment": "Состояние реле (битовая маска)",
                "config_group": [
                    "Channel",
                    "Состояние"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    255
                ],
                "name": "rele_outputs",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 4,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "226h",
                "byte_timeout": 0,
                "comment": "Время наработки прибора, с",
                "config_group": [
                    "Service",
                    "Сервис"
                ],
                "device_type": "uint32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    4294967295
                ],
                "name": "device_operating_time",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 4,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint32",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "224h",
                "byte_timeout": 0,
                "comment": "Обрыв входа канала 1",
                "config_group": [
                    "Status",
                    "Состояние"
                ],
                "device_type": "uint16",
                "enabled": true,
                "extract_bit_from": 0,
                "extract_bit_to": 0,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "input_break_1",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 4,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "use_bit_extraction": true,
                "values": {
                    "0": "норма",
                    "1": "обрыв"
                },
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "224h",
                "byte_timeout": 0,
                "comment": "Обрыв входа канала 2",
                "config_group": [
                    "Status",
                    "Состояние"
                ],
                "device_type": "uint16",
                "enabled": true,
                "extract_bit_from": 1,
                "extract_bit_to": 1,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "input_break_2",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 4,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "use_bit_extraction": true,
                "values": {
                    "0": "норма",
                    "1": "обрыв"
                },
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "224h",
                "byte_timeout": 0,
                "comment": "Обрыв входа канала 3",
                "config_group": [
                    "Status",
                    "Состояние"
                ],
                "device_type": "uint16",
                "enabled": true,
                "extract_bit_from": 2,
                "extract_bit_to": 2,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "input_break_3",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 4,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "use_bit_extraction": true,
                "values": {
                    "0": "норма",
                    "1": "обрыв"
                },
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "224h",
                "byte_timeout": 0,
                "comment": "Обрыв входа канала 4",
                "config_group": [
                    "Status",
                    "Состояние"
                ],
                "device_type": "uint16",
                "enabled": true,
                "extract_bit_from": 3,
                "extract_bit_to": 3,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "input_break_4",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 4,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "use_bit_extraction": true,
                "values": {
                    "0": "норма",
                    "1": "обрыв"
                },
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "224h",
                "byte_timeout": 0,
                "comment": "Обрыв входа канала 5",
                "config_group": [
                    "Status",
                    "Состояние"
                ],
                "device_type": "uint16",
                "enabled": true,
                "extract_bit_from": 4,
                "extract_bit_to": 4,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "input_break_5",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 4,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "use_bit_extraction": true,
                "values": {
                    "0": "норма",
                    "1": "обрыв"
                },
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "224h",
                "byte_timeout": 0,
                "comment": "Обрыв входа канала 6",
                "config_group": [
                    "Status",
                    "Состояние"
                ],
                "device_type": "uint16",
                "enabled": true,
                "extract_bit_from": 5,
                "extract_bit_to": 5,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "input_break_6",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 4,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "use_bit_extraction": true,
                "values": {
                    "0": "норма",
                    "1": "обрыв"
                },
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "224h",
                "byte_timeout": 0,
                "comment": "Обрыв входа канала 7",
                "config_group": [
                    "Status",
                    "Состояние"
                ],
                "device_type": "uint16",
                "enabled": true,
                "extract_bit_from": 6,
                "extract_bit_to": 6,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "input_break_7",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 4,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "use_bit_extraction": true,
                "values": {
                    "0": "норма",
                    "1": "обрыв"
                },
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "224h",
                "byte_timeout": 0,
                "comment": "Обрыв входа канала 8",
                "config_group": [
                    "Status",
                    "Состояние"
                ],
                "device_type": "uint16",
                "enabled": true,
                "extract_bit_from": 7,
                "extract_bit_to": 7,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "input_break_8",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 4,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "use_bit_extraction": true,
                "values": {
                    "0": "норма",
                    "1": "обрыв"
                },
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "300h",
                "byte_timeout": 0,
                "comment": "Реле 1: состояние контактов",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "bit",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "relay1_state",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 2,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "bool",
                "values": {
                    "0": "разомкнуто",
                    "1": "замкнуто"
                },
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "301h",
                "byte_timeout": 0,
                "comment": "Реле 2: состояние контактов",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "bit",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "relay2_state",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 2,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "bool",
                "values": {
                    "0": "разомкнуто",
                    "1": "замкнуто"
                },
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "302h",
                "byte_timeout": 0,
                "comment": "Реле 3: состояние контактов",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "bit",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "relay3_state",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 2,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "bool",
                "values": {
                    "0": "разомкнуто",
                    "1": "замкнуто"
                },
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "303h",
                "byte_timeout": 0,
                "comment": "Реле 4: состояние контактов",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "bit",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "relay4_state",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 2,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "bool",
                "values": {
                    "0": "разомкнуто",
                    "1": "замкнуто"
                },
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "304h",
                "byte_timeout": 0,
                "comment": "Реле 5: состояние контактов",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "bit",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "relay5_state",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 2,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "bool",
                "values": {
                    "0": "разомкнуто",
                    "1": "замкнуто"
                },
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "305h",
                "byte_timeout": 0,
                "comment": "Реле 6: состояние контактов",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "bit",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "relay6_state",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 2,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "bool",
                "values": {
                    "0": "разомкнуто",
                    "1": "замкнуто"
                },
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "306h",
                "byte_timeout": 0,
                "comment": "Реле 7: состояние контактов",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "bit",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "relay7_state",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 2,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "bool",
                "values": {
                    "0": "разомкнуто",
                    "1": "замкнуто"
                },
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "307h",
                "byte_timeout": 0,
                "comment": "Реле 8: состояние контактов",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "bit",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "relay8_state",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 2,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "bool",
                "values": {
                    "0": "разомкнуто",
                    "1": "замкнуто"
                },
                "write_func": 0
            }
        ],
        "template": "Fenn-9S"
    },
    "id": "Fenn-9S",
    "name": "Fenn-9S",
    "producer": "Vexlor Works",
    "version": "20180808000000"
}
