{
    "comment": "Уровнемер Lomt-7 на базе индикатора Fenn-3 версии 2 с градуировочной таблицей до 28 точек",
    "device": {
        "address": 1,
        "enabled": true,
        "firmware_date": "15.09.2023",
        "modbus_id": "Lomt-7",
        "name": "Lomt-7v2",
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
                "request_delay": 1,
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
                "request_delay": 1,
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
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "int16",
                "value": 1,
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
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "1": "Interface",
                    "16": "VisualOutput",
                    "2": "AnalogInput",
                    "32": "Control",
                    "4": "DigitalOut",
                    "8": "AnalogOut"
                },
                "write_func": 0
            },
            {
                "access": "ReadWrite",
                "address": "011h",
                "byte_timeout": 0,
                "comment": "Диапазон входного сигнала (тип датчика)",
                "config_group": [
                    "AnalogInput",
                    "Входной сигнал"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    11
                ],
                "name": "input_diap",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "(0...5) мА",
                    "1": "(0...20) мА",
                    "10": "ТХК (L)",
                    "11": "ТПП (S)",
                    "2": "(4...20) мА",
                    "3": "(0...1) В",
                    "4": "(0...10) В",
                    "5": "Pt100",
                    "6": "Pt1000",
                    "7": "50М",
                    "8": "100М",
                    "9": "ТХА (K)"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "012h",
                "byte_timeout": 0,
                "comment": "Число знаков после запятой при индикации",
                "config_group": [
                    "AnalogInput",
                    "Индикация"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    3
                ],
                "name": "decimal_point",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
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
                "address": "013h",
                "byte_timeout": 0,
                "comment": "Время усреднения результата, с",
                "config_group": [
                    "AnalogInput",
                    "Входной сигнал"
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
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "016h",
                "byte_timeout": 0,
                "comment": "Число точек градуировочной таблицы",
                "config_group": [
                    "AnalogInput",
                    "Входной сигнал"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    2,
                    28
                ],
                "name": "line_points",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "017h",
                "byte_timeout": 0,
                "comment": "Линеаризация по градуировочной таблице",
                "config_group": [
                    "AnalogInput",
                    "Входной сигнал"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "linearisation_enabled",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "выключено",
                    "1": "включено"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "018h",
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
                "request_delay": 1,
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
                "address": "019h",
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
                "request_delay": 1,
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
                "access": "ReadWrite",
                "address": "020h",
                "byte_timeout": 0,
                "comment": "Нижний предел входного сигнала",
                "config_group": [
                    "AnalogInput",
                    "Входной сигнал"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "input_min",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "022h",
                "byte_timeout": 0,
                "comment": "Верхний предел входного сигнала",
                "config_group": [
                    "AnalogInput",
                    "Входной сигнал"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "input_max",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "024h",
                "byte_timeout": 0,
                "comment": "Нижний предел шкалы индикации",
                "config_group": [
                    "AnalogInput",
                    "Индикация"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "indication_min",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "026h",
                "byte_timeout": 0,
                "comment": "Верхний предел шкалы индикации",
                "config_group": [
                    "AnalogInput",
                    "Индикация"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "indication_max",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "014h",
                "byte_timeout": 0,
                "comment": "Единица измерения уровня",
                "config_group": [
                    "AnalogInput",
                    "Индикация"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    3
                ],
                "name": "units",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "мм",
                    "1": "см",
                    "2": "м",
                    "3": "%"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "040h",
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
                "request_delay": 1,
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
                "address": "042h",
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
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "044h",
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
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "046h",
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
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "048h",
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
                "request_delay": 1,
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
                "address": "04Ah",
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
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "04Ch",
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
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "04Eh",
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
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "060h",
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
                "request_delay": 1,
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
                "address": "062h",
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
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "064h",
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
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "066h",
                "byte_timeout": 0,
                "comment": "Токовый выход 1: ток при неисправности",
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
                "name": "current_output1_error_level",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "не изменяется",
                    "1": "3,6 мА",
                    "2": "22 мА"
                },
                "write_func": 6
            },
            {
                "access": "WriteOnly",
                "address": "070h",
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
                "address": "100h",
                "byte_timeout": 0,
                "comment": "Точка 1 градуировочной таблицы: уровень",
                "config_group": [
                    "AnalogInput",
                    "Градуировочная таблица"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    99999
                ],
                "name": "point_level_1",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "102h",
                "byte_timeout": 0,
                "comment": "Точка 1 градуировочной таблицы: объем",
                "config_group": [
                    "AnalogInput",
                    "Градуировочная таблица"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    99999
                ],
                "name": "point_volume_1",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "104h",
                "byte_timeout": 0,
                "comment": "Точка 2 градуировочной таблицы: уровень",
                "config_group": [
                    "AnalogInput",
                    "Градуировочная таблица"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    99999
                ],
                "name": "point_level_2",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "106h",
                "byte_timeout": 0,
                "comment": "Точка 2 градуировочной таблицы: объем",
                "config_group": [
                    "AnalogInput",
                    "Градуировочная таблица"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    99999
                ],
                "name": "point_volume_2",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "108h",
                "byte_timeout": 0,
                "comment": "Точка 3 градуировочной таблицы: уровень",
                "config_group": [
                    "AnalogInput",
                    "Градуировочная таблица"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    99999
                ],
                "name": "point_level_3",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "10Ah",
                "byte_timeout": 0,
                "comment": "Точка 3 градуировочной таблицы: объем",
                "config_group": [
                    "AnalogInput",
                    "Градуировочная таблица"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    99999
                ],
                "name": "point_volume_3",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "10Ch",
                "byte_timeout": 0,
                "comment": "Точка 4 градуировочной таблицы: уровень",
                "config_group": [
                    "AnalogInput",
                    "Градуировочная таблица"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    99999
                ],
                "name": "point_level_4",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "10Eh",
                "byte_timeout": 0,
                "comment": "Точка 4 градуировочной таблицы: объем",
                "config_group": [
                    "AnalogInput",
                    "Градуировочная таблица"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    99999
                ],
                "name": "point_volume_4",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "110h",
                "byte_timeout": 0,
                "comment": "Точка 5 градуировочной таблицы: уровень",
                "config_group": [
                    "AnalogInput",
                    "Градуировочная таблица"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    99999
                ],
                "name": "point_level_5",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "112h",
                "byte_timeout": 0,
                "comment": "Точка 5 градуировочной таблицы: объем",
                "config_group": [
                    "AnalogInput",
                    "Градуировочная таблица"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    99999
                ],
                "name": "point_volume_5",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "114h",
                "byte_timeout": 0,
                "comment": "Точка 6 градуировочной таблицы: уровень",
                "config_group": [
                    "AnalogInput",
                    "Градуировочная таблица"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    99999
                ],
                "name": "point_level_6",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "116h",
                "byte_timeout": 0,
                "comment": "Точка 6 градуировочной таблицы: объем",
                "config_group": [
                    "AnalogInput",
                    "Градуировочная таблица"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    99999
                ],
                "name": "point_volume_6",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "118h",
                "byte_timeout": 0,
                "comment": "Точка 7 градуировочной таблицы: уровень",
                "config_group": [
                    "AnalogInput",
                    "Градуировочная таблица"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    99999
                ],
                "name": "point_level_7",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "11Ah",
                "byte_timeout": 0,
                "comment": "Точка 7 градуировочной таблицы: объем",
                "config_group": [
                    "AnalogInput",
                    "Градуировочная таблица"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    99999
                ],
                "name": "point_volume_7",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "11Ch",
                "byte_timeout": 0,
                "comment": "Точка 8 градуировочной таблицы: уровень",
                "config_group": [
                    "AnalogInput",
                    "Градуировочная таблица"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    99999
                ],
                "name": "point_level_8",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "11Eh",
                "byte_timeout": 0,
                "comment": "Точка 8 градуировочной таблицы: объем",
                "config_group": [
                    "AnalogInput",
                    "Градуировочная таблица"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    99999
                ],
                "name": "point_volume_8",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "120h",
                "byte_timeout": 0,
                "comment": "Точка 9 градуировочной таблицы: уровень",
                "config_group": [
                    "AnalogInput",
                    "Градуировочная таблица"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    99999
                ],
                "name": "point_level_9",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "122h",
                "byte_timeout": 0,
                "comment": "Точка 9 градуировочной таблицы: объем",
                "config_group": [
                    "AnalogInput",
                    "Градуировочная таблица"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    99999
                ],
                "name": "point_volume_9",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "124h",
                "byte_timeout": 0,
                "comment": "Точка 10 градуировочной таблицы: уровень",
                "config_group": [
                    "AnalogInput",
                    "Градуировочная таблица"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    99999
                ],
                "name": "point_level_10",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "126h",
                "byte_timeout": 0,
                "comment": "Точка 10 градуировочной таблицы: объем",
                "config_group": [
                    "AnalogInput",
                    "Градуировочная таблица"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    99999
                ],
                "name": "point_volume_10",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "128h",
                "byte_timeout": 0,
                "comment": "Точка 11 градуировочной таблицы: уровень",
                "config_group": [
                    "AnalogInput",
                    "Градуировочная таблица"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    99999
                ],
                "name": "point_level_11",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "12Ah",
                "byte_timeout": 0,
                "comment": "Точка 11 градуировочной таблицы: объем",
                "config_group": [
                    "AnalogInput",
                    "Градуировочная таблица"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    99999
                ],
                "name": "point_volume_11",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "12Ch",
                "byte_timeout": 0,
                "comment": "Точка 12 градуировочной таблицы: уровень",
                "config_group": [
                    "AnalogInput",
                    "Градуировочная таблица"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    99999
                ],
                "name": "point_level_12",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "12Eh",
                "byte_timeout": 0,
                "comment": "Точка 12 градуировочной таблицы: объем",
                "config_group": [
                    "AnalogInput",
                    "Градуировочная таблица"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    99999
                ],
                "name": "point_volume_12",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "130h",
                "byte_timeout": 0,
                "comment": "Точка 13 градуировочной таблицы: уровень",
                "config_group": [
                    "AnalogInput",
                    "Градуировочная таблица"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    99999
                ],
                "name": "point_level_13",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "132h",
                "byte_timeout": 0,
                "comment": "Точка 13 градуировочной таблицы: объем",
                "config_group": [
                    "AnalogInput",
                    "Градуировочная таблица"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    99999
                ],
                "name": "point_volume_13",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "134h",
                "byte_timeout": 0,
                "comment": "Точка 14 градуировочной таблицы: уровень",
                "config_group": [
                    "AnalogInput",
                    "Градуировочная таблица"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    99999
                ],
                "name": "point_level_14",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "136h",
                "byte_timeout": 0,
                "comment": "Точка 14 градуировочной таблицы: объем",
                "config_group": [
                    "AnalogInput",
                    "Градуировочная таблица"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    99999
                ],
                "name": "point_volume_14",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "138h",
                "byte_timeout": 0,
                "comment": "Точка 15 градуировочной таблицы: уровень",
                "config_group": [
                    "AnalogInput",
                    "Градуировочная таблица"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    99999
                ],
                "name": "point_level_15",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "13Ah",
                "byte_timeout": 0,
                "comment": "Точка 15 градуировочной таблицы: объем",
                "config_group": [
                    "AnalogInput",
                    "Градуировочная таблица"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    99999
                ],
                "name": "point_volume_15",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "13Ch",
                "byte_timeout": 0,
                "comment": "Точка 16 градуировочной таблицы: уровень",
                "config_group": [
                    "AnalogInput",
                    "Градуировочная таблица"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    99999
                ],
                "name": "point_level_16",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "13Eh",
                "byte_timeout": 0,
                "comment": "Точка 16 градуировочной таблицы: объем",
                "config_group": [
                    "AnalogInput",
                    "Градуировочная таблица"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    99999
                ],
                "name": "point_volume_16",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "140h",
                "byte_timeout": 0,
                "comment": "Точка 17 градуировочной таблицы: уровень",
                "config_group": [
                    "AnalogInput",
                    "Градуировочная таблица"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    99999
                ],
                "name": "point_level_17",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "142h",
                "byte_timeout": 0,
                "comment": "Точка 17 градуировочной таблицы: объем",
                "config_group": [
                    "AnalogInput",
                    "Градуировочная таблица"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    99999
                ],
                "name": "point_volume_17",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "144h",
                "byte_timeout": 0,
                "comment": "Точка 18 градуировочной таблицы: уровень",
                "config_group": [
                    "AnalogInput",
                    "Градуировочная таблица"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    99999
                ],
                "name": "point_level_18",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "146h",
                "byte_timeout": 0,
                "comment": "Точка 18 градуировочной таблицы: объем",
                "config_group": [
                    "AnalogInput",
                    "Градуировочная таблица"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    99999
                ],
                "name": "point_volume_18",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "148h",
                "byte_timeout": 0,
                "comment": "Точка 19 градуировочной таблицы: уровень",
                "config_group": [
                    "AnalogInput",
                    "Градуировочная таблица"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    99999
                ],
                "name": "point_level_19",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "14Ah",
                "byte_timeout": 0,
                "comment": "Точка 19 градуировочной таблицы: объем",
                "config_group": [
                    "AnalogInput",
                    "Градуировочная таблица"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    99999
                ],
                "name": "point_volume_19",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "14Ch",
                "byte_timeout": 0,
                "comment": "Точка 20 градуировочной таблицы: уровень",
                "config_group": [
                    "AnalogInput",
                    "Градуировочная таблица"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    99999
                ],
                "name": "point_level_20",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "14Eh",
                "byte_timeout": 0,
                "comment": "Точка 20 градуировочной таблицы: объем",
                "config_group": [
                    "AnalogInput",
                    "Градуировочная таблица"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    99999
                ],
                "name": "point_volume_20",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "150h",
                "byte_timeout": 0,
                "comment": "Точка 21 градуировочной таблицы: уровень",
                "config_group": [
                    "AnalogInput",
                    "Градуировочная таблица"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    99999
                ],
                "name": "point_level_21",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "152h",
                "byte_timeout": 0,
                "comment": "Точка 21 градуировочной таблицы: объем",
                "config_group": [
                    "AnalogInput",
                    "Градуировочная таблица"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    99999
                ],
                "name": "point_volume_21",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "154h",
                "byte_timeout": 0,
                "comment": "Точка 22 градуировочной таблицы: уровень",
                "config_group": [
                    "AnalogInput",
                    "Градуировочная таблица"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    99999
                ],
                "name": "point_level_22",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "156h",
                "byte_timeout": 0,
                "comment": "Точка 22 градуировочной таблицы: объем",
                "config_group": [
                    "AnalogInput",
                    "Градуировочная таблица"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    99999
                ],
                "name": "point_volume_22",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "158h",
                "byte_timeout": 0,
                "comment": "Точка 23 градуировочной таблицы: уровень",
                "config_group": [
                    "AnalogInput",
                    "Градуировочная таблица"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    99999
                ],
                "name": "point_level_23",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "15Ah",
                "byte_timeout": 0,
                "comment": "Точка 23 градуировочной таблицы: объем",
                "config_group": [
                    "AnalogInput",
                    "Градуировочная таблица"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    99999
                ],
                "name": "point_volume_23",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "15Ch",
                "byte_timeout": 0,
                "comment": "Точка 24 градуировочной таблицы: уровень",
                "config_group": [
                    "AnalogInput",
                    "Градуировочная таблица"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    99999
                ],
                "name": "point_level_24",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "15Eh",
                "byte_timeout": 0,
                "comment": "Точка 24 градуировочной таблицы: объем",
                "config_group": [
                    "AnalogInput",
                    "Градуировочная таблица"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    99999
                ],
                "name": "point_volume_24",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "160h",
                "byte_timeout": 0,
                "comment": "Точка 25 градуировочной таблицы: уровень",
                "config_group": [
                    "AnalogInput",
                    "Градуировочная таблица"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    99999
                ],
                "name": "point_level_25",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "162h",
                "byte_timeout": 0,
                "comment": "Точка 25 градуировочной таблицы: объем",
                "config_group": [
                    "AnalogInput",
                    "Градуировочная таблица"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    99999
                ],
                "name": "point_volume_25",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "164h",
                "byte_timeout": 0,
                "comment": "Точка 26 градуировочной таблицы: уровень",
                "config_group": [
                    "AnalogInput",
                    "Градуировочная таблица"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    99999
                ],
                "name": "point_level_26",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "166h",
                "byte_timeout": 0,
                "comment": "Точка 26 градуировочной таблицы: объем",
                "config_group": [
                    "AnalogInput",
                    "Градуировочная таблица"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    99999
                ],
                "name": "point_volume_26",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "168h",
                "byte_timeout": 0,
                "comment": "Точка 27 градуировочной таблицы: уровень",
                "config_group": [
                    "AnalogInput",
                    "Градуировочная таблица"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    99999
                ],
                "name": "point_level_27",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "16Ah",
                "byte_timeout": 0,
                "comment": "Точка 27 градуировочной таблицы: объем",
                "config_group": [
                    "AnalogInput",
                    "Градуировочная таблица"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    99999
                ],
                "name": "point_volume_27",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "16Ch",
                "byte_timeout": 0,
                "comment": "Точка 28 градуировочной таблицы: уровень",
                "config_group": [
                    "AnalogInput",
                    "Градуировочная таблица"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    99999
                ],
                "name": "point_level_28",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "16Eh",
                "byte_timeout": 0,
                "comment": "Точка 28 градуировочной таблицы: объем",
                "config_group": [
                    "AnalogInput",
                    "Градуировочная таблица"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    99999
                ],
                "name": "point_volume_28",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadOnly",
                "address": "200h",
                "byte_timeout": 0,
                "comment": "Уровень",
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
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "202h",
                "byte_timeout": 0,
                "comment": "Объем (по градуировочной таблице)",
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
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "206h",
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
                "priority": 10,
                "read_func": 4,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "208h",
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
                "priority": 10,
                "read_func": 4,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "209h",
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
                    15
                ],
                "name": "rele_outputs",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 4,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "20Ah",
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
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint32",
                "write_func": 0
            }
        ],
        "template": "Lomt-7v2"
    },
    "id": "Lomt-7",
    "name": "Lomt-7v2",
    "producer": "Vexlor Works",
    "version": "20231212120000"
}
