{
    "comment": "Блок измерительный двухканальный Fenn2R с кольцевым архивом",
    "device": {
        "address": 7,
        "enabled": true,
        "modbus_id": "Fenn2R",
        "name": "Fenn2R",
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
                "comment": "Канал 1: измеряемый параметр (формат архива)",
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
                "name": "input_type_1",
                "polling_period": 1000,
                "priority": 9,
                "read_func": 3,
                "request_delay": 30,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "pH",
                    "1": "ОВП, мВ",
                    "2": "удельная электрическая проводимость"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "00Ah",
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
                "priority": 9,
                "read_func": 3,
                "request_delay": 30,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "00Ch",
                "byte_timeout": 0,
                "comment": "Канал 1: режим термокомпенсации",
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
                "name": "compensation_mode_1",
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
                "address": "00Eh",
                "byte_timeout": 0,
                "comment": "Канал 1: температура ручной термокомпенсации, °C",
                "config_group": [
                    "AnalogInput",
                    "Вход 1"
                ],
                "decimal_point": 1,
                "device_type": "int16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -100,
                    1500
                ],
                "name": "hand_t_1",
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
                "address": "009h",
                "byte_timeout": 0,
                "comment": "Канал 2: измеряемый параметр (формат архива)",
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
                "name": "input_type_2",
                "polling_period": 1000,
                "priority": 9,
                "read_func": 3,
                "request_delay": 30,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "pH",
                    "1": "ОВП, мВ",
                    "2": "удельная электрическая проводимость"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "00Bh",
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
                "priority": 9,
                "read_func": 3,
                "request_delay": 30,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "00Dh",
                "byte_timeout": 0,
                "comment": "Канал 2: режим термокомпенсации",
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
                "name": "compensation_mode_2",
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
                "address": "00Fh",
                "byte_timeout": 0,
                "comment": "Канал 2: температура ручной термокомпенсации, °C",
                "config_group": [
                    "AnalogInput",
                    "Вход 2"
                ],
                "decimal_point": 1,
                "device_type": "int16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -100,
                    1500
                ],
                "name": "hand_t_2",
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
                "address": "010h",
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
                "address": "011h",
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
                "address": "020h",
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
                "address": "021h",
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
                    3
                ],
                "name": "relay1_binding",
                "polling_period": 1000,
                "priority": 9,
                "read_func": 3,
                "request_delay": 30,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Канал 1",
                    "1": "Канал 2",
                    "2": "Канал 1: температура",
                    "3": "Канал 2: температура"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "022h",
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
                "priority": 9,
                "read_func": 3,
                "request_delay": 30,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "024h",
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
                "priority": 9,
                "read_func": 3,
                "request_delay": 30,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "026h",
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
                "address": "027h",
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
                    3
                ],
                "name": "relay2_binding",
                "polling_period": 1000,
                "priority": 9,
                "read_func": 3,
                "request_delay": 30,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Канал 1",
                    "1": "Канал 2",
                    "2": "Канал 1: температура",
                    "3": "Канал 2: температура"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "028h",
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
                "priority": 9,
                "read_func": 3,
                "request_delay": 30,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "02Ah",
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
                "priority": 9,
                "read_func": 3,
                "request_delay": 30,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "02Ch",
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
                "address": "02Dh",
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
                    3
                ],
                "name": "relay3_binding",
                "polling_period": 1000,
                "priority": 9,
                "read_func": 3,
                "request_delay": 30,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Канал 1",
                    "1": "Канал 2",
                    "2": "Канал 1: температура",
                    "3": "Канал 2: температура"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "02Eh",
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
                "priority": 9,
                "read_func": 3,
                "request_delay": 30,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "030h",
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
                "priority": 9,
                "read_func": 3,
                "request_delay": 30,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "032h",
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
                "address": "033h",
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
                    3
                ],
                "name": "relay4_binding",
                "polling_period": 1000,
                "priority": 9,
                "read_func": 3,
                "request_delay": 30,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Канал 1",
                    "1": "Канал 2",
                    "2": "Канал 1: температура",
                    "3": "Канал 2: температура"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "034h",
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
                "priority": 9,
                "read_func": 3,
                "request_delay": 30,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "036h",
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
                "priority": 9,
                "read_func": 3,
                "request_delay": 30,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadOnly",
                "address": "040h",
                "byte_timeout": 0,
                "comment": "Канал 1: результат измерения",
                "config_group": [
                    "Channel",
                    "Канал 1"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    99999
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
                "address": "042h",
                "byte_timeout": 0,
                "comment": "Канал 1: температура, °C",
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
                "address": "044h",
                "byte_timeout": 0,
                "comment": "Канал 2: результат измерения",
                "config_group": [
                    "Channel",
                    "Канал 2"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    99999
                ],
                "name": "ch2_value",
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
                "address": "046h",
                "byte_timeout": 0,
                "comment": "Канал 2: температура, °C",
                "config_group": [
                    "Channel",
                    "Канал 2"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -50,
                    200
                ],
                "name": "ch2_T_value",
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
                "address": "048h",
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
                "address": "049h",
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
                "priority": 9,
                "read_func": 4,
                "request_delay": 30,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "04Ah",
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
                "access": "ReadOnly",
                "address": "04Ch",
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
                "priority": 9,
                "read_func": 4,
                "request_delay": 30,
                "response_timeout": 0,
                "server_type": "uint32",
                "write_func": 0
            },
            {
                "access": "WriteOnly",
                "address": "050h",
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
        "template": "Fenn2R"
    },
    "id": "Fenn2R",
    "name": "Fenn2R",
    "producer": "Vexlor Works",
    "version": "20180927090000"
}
