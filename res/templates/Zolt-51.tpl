{
    "comment": "pH-метр настенный Zolt-51 с кольцевым архивом",
    "device": {
        "address": 7,
        "enabled": true,
        "modbus_id": "Zolt51",
        "name": "Zolt-51",
        "polling_period": 1000,
        "priority": 9,
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
                "priority": 9,
                "read_func": 3,
                "request_delay": 30,
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
                "write_func": 16
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
                "priority": 9,
                "read_func": 3,
                "request_delay": 30,
                "response_timeout": 0,
                "server_type": "uint16",
                "value": 0,
                "values": {
                    "0": "выключен",
                    "1": "выключен",
                    "2": "по четности",
                    "3": "по нечетности"
                },
                "write_func": 16
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
                "priority": 9,
                "read_func": 3,
                "request_delay": 30,
                "response_timeout": 0,
                "server_type": "int16",
                "value": 7,
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "008h",
                "byte_timeout": 0,
                "comment": "Режим измерения (определяет формат архива)",
                "config_group": [
                    "AnalogInput",
                    "Вход"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "input_type",
                "polling_period": 1000,
                "priority": 9,
                "read_func": 3,
                "request_delay": 30,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "pH",
                    "1": "мВ"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "009h",
                "byte_timeout": 0,
                "comment": "Время усреднения результата, с",
                "config_group": [
                    "AnalogInput",
                    "Вход"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    1,
                    60
                ],
                "name": "average_time",
                "polling_period": 1000,
                "priority": 9,
                "read_func": 3,
                "request_delay": 30,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "00Ah",
                "byte_timeout": 0,
                "comment": "Режим термокомпенсации",
                "config_group": [
                    "AnalogInput",
                    "Вход"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "compensation_mode",
                "polling_period": 1000,
                "priority": 9,
                "read_func": 3,
                "request_delay": 30,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "автоматическая",
                    "1": "ручная"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "00Bh",
                "byte_timeout": 0,
                "comment": "Температура ручной термокомпенсации, °C",
                "config_group": [
                    "AnalogInput",
                    "Вход"
                ],
                "decimal_point": 1,
                "device_type": "int16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -100,
                    1500
                ],
                "name": "hand_t",
                "polling_period": 1000,
                "priority": 9,
                "read_func": 3,
                "request_delay": 30,
                "response_timeout": 0,
                "server_type": "int16",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "00Ch",
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
                "priority": 9,
                "read_func": 3,
                "request_delay": 30,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "выключена",
                    "1": "при нажатии кнопок",
                    "2": "при срабатывании реле",
                    "3": "при нажатии кнопок и срабатывании реле"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "00Dh",
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
                "priority": 9,
                "read_func": 3,
                "request_delay": 30,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "разблокирована",
                    "1": "заблокирована"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "00Eh",
                "byte_timeout": 0,
                "comment": "Интервал записи в архив",
                "config_group": [
                    "Archive",
                    "Архив"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    7
                ],
                "name": "archive_interval",
                "polling_period": 1000,
                "priority": 9,
                "read_func": 3,
                "request_delay": 30,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "1 с",
                    "1": "2 с",
                    "2": "5 с",
                    "3": "10 с",
                    "4": "15 с",
                    "5": "30 с",
                    "6": "1 мин",
                    "7": "5 мин"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "010h",
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
                "priority": 9,
                "read_func": 3,
                "request_delay": 30,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "выключено",
                    "1": "включение выше уставки",
                    "2": "включение ниже уставки"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "011h",
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
                "priority": 9,
                "read_func": 3,
                "request_delay": 30,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "выключено",
                    "1": "включение выше уставки",
                    "2": "включение ниже уставки"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "012h",
                "byte_timeout": 0,
                "comment": "Токовый выход: диапазон",
                "config_group": [
                    "AnalogOut",
                    "Токовый выход"
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
                "priority": 9,
                "read_func": 3,
                "request_delay": 30,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "(0...5) мА",
                    "1": "(0...20) мА",
                    "2": "(4...20) мА"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "014h",
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
                    -2000,
                    2000
                ],
                "name": "relay1_setpoint",
                "polling_period": 1000,
                "priority": 9,
                "read_func": 3,
                "request_delay": 30,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "016h",
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
                    2000
                ],
                "name": "relay1_hysteresis",
                "polling_period": 1000,
                "priority": 9,
                "read_func": 3,
                "request_delay": 30,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "018h",
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
                    -2000,
                    2000
                ],
                "name": "relay2_setpoint",
                "polling_period": 1000,
                "priority": 9,
                "read_func": 3,
                "request_delay": 30,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "01Ah",
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
                    2000
                ],
                "name": "relay2_hysteresis",
                "polling_period": 1000,
                "priority": 9,
                "read_func": 3,
                "request_delay": 30,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "01Ch",
                "byte_timeout": 0,
                "comment": "Токовый выход: значение параметра при минимальном токе",
                "config_group": [
                    "AnalogOut",
                    "Токовый выход"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -2000,
                    2000
                ],
                "name": "current_output1_min_ip",
                "polling_period": 1000,
                "priority": 9,
                "read_func": 3,
                "request_delay": 30,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "01Eh",
                "byte_timeout": 0,
                "comment": "Токовый выход: значение параметра при максимальном токе",
                "config_group": [
                    "AnalogOut",
                    "Токовый выход"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -2000,
                    2000
                ],
                "name": "current_output1_max_ip",
                "polling_period": 1000,
                "priority": 9,
                "read_func": 3,
                "request_delay": 30,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadOnly",
                "address": "020h",
                "byte_timeout": 0,
                "comment": "Результат измерения: pH или ОВП, мВ",
                "config_group": [
                    "Channel",
                    "Канал 1"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -2000,
                    2000
                ],
                "name": "ch1_value",
                "polling_period": 1000,
                "priority": 9,
                "read_func": 4,
                "request_delay": 30,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "022h",
                "byte_timeout": 0,
                "comment": "Температура, °C",
                "config_group": [
                    "Channel",
                    "Канал 1"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -50,
                    200
                ],
                "name": "ch1_T_value",
                "polling_period": 1000,
                "priority": 9,
                "read_func": 4,
                "request_delay": 30,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "024h",
                "byte_timeout": 0,
                "comment": "Ток на токовом выходе, мА",
                "config_group": [
                    "Channel",
                    "Токовый выход"
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
                "priority": 9,
                "read_func": 4,
                "request_delay": 30,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "026h",
                "byte_timeout": 0,
                "comment": "Слово ошибок прибора (битовая маска)",
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
                "priority": 9,
                "read_func": 4,
                "request_delay": 30,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "027h",
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
                    3
                ],
                "name": "rele_outputs",
                "polling_period": 1000,
                "priority": 9,
                "read_func": 4,
                "request_delay": 30,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "028h",
                "byte_timeout": 0,
                "comment": "Текущий адрес записи в кольцевой архив",
                "config_group": [
                    "Archive",
                    "Архив"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    65535
                ],
                "name": "archive_write_index",
                "polling_period": 1000,
                "priority": 9,
                "read_func": 4,
                "request_delay": 30,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 0
            },
            {
                "access": "WriteOnly",
                "address": "030h",
                "byte_timeout": 0,
                "comment": "Форматирование (очистка) архива (запись 1)",
                "config_group": [
                    "Archive",
                    "Архив"
                ],
                "device_type": "bit",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "archive_format",
                "polling_period": 1000,
                "priority": 9,
                "read_func": 0,
                "request_delay": 70,
                "response_timeout": 0,
                "server_type": "bool",
                "write_func": 5
            }
        ],
        "template": "Zolt-51"
    },
    "id": "Zolt-51",
    "name": "Zolt51",
    "producer": "Vexlor Works",
    "version": "20180927150000"
}
