{
    "comment": "pH-метр настенный Zolt-51 с архивом и журналом градуировок (версия 2)",
    "device": {
        "address": 2,
        "enabled": true,
        "modbus_id": "Zolt-51",
        "name": "Zolt-51v2",
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
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "int16",
                "value": 2,
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "003h",
                "byte_timeout": 0,
                "comment": "Протокол обмена",
                "config_group": [
                    "Interface",
                    "Конфигурация интерфейса"
                ],
                "device_type": "int16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "protocol",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "int16",
                "value": 0,
                "values": {
                    "0": "Modbus RTU",
                    "1": "Modbus ASCII"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "004h",
                "byte_timeout": 0,
                "comment": "Символ конца кадра Modbus ASCII",
                "config_group": [
                    "Interface",
                    "Конфигурация интерфейса"
                ],
                "device_type": "int16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    255
                ],
                "name": "delimiter",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "int16",
                "value": 10,
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "008h",
                "byte_timeout": 0,
                "comment": "Режим индикации на экране прибора",
                "config_group": [
                    "VisualOutput",
                    "Индикация"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    2
                ],
                "name": "measure_mode",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "pH/ОВП",
                    "1": "pH/ОВП и температура",
                    "2": "График"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "009h",
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
                "request_delay": 1,
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
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
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
                "address": "00Eh",
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
                "write_func": 16
            },
            {
                "access": "WriteOnly",
                "address": "018h",
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
                "comment": "Режим измерения",
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
                "name": "input_mode",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "pH",
                    "1": "ОВП (мВ)"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "021h",
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
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "022h",
                "byte_timeout": 0,
                "comment": "Число знаков после запятой при индикации",
                "config_group": [
                    "AnalogInput",
                    "Вход"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    2,
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
                    "2": "0,00",
                    "3": "0,000"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "023h",
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
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
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
                "address": "024h",
                "byte_timeout": 0,
                "comment": "Тип термосопротивления",
                "config_group": [
                    "Sensor",
                    "Термодатчик"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    3
                ],
                "name": "resistor_type",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Pt100",
                    "1": "Pt1000",
                    "2": "100М",
                    "3": "50М"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "025h",
                "byte_timeout": 0,
                "comment": "Время усреднения температуры, с",
                "config_group": [
                    "Sensor",
                    "Термодатчик"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    1,
                    60
                ],
                "name": "average_time_t",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "028h",
                "byte_timeout": 0,
                "comment": "Температура ручной термокомпенсации, °C",
                "config_group": [
                    "AnalogInput",
                    "Вход"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -10,
                    150
                ],
                "name": "hand_t",
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
                "address": "02Ah",
                "byte_timeout": 0,
                "comment": "Координата изопотенциальной точки pHи, pH",
                "config_group": [
                    "AnalogInput",
                    "Вход"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    14
                ],
                "name": "isopotential_ph",
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
                "address": "02Ch",
                "byte_timeout": 0,
                "comment": "Координата изопотенциальной точки Eи, мВ",
                "config_group": [
                    "AnalogInput",
                    "Вход"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -1000,
                    1000
                ],
                "name": "isopotential_e",
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
                "address": "02Eh",
                "byte_timeout": 0,
                "comment": "Крутизна электродной системы S, %",
                "config_group": [
                    "AnalogInput",
                    "Вход"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    50,
                    120
                ],
                "name": "slope",
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
                "address": "034h",
                "byte_timeout": 0,
                "comment": "Поправка к показаниям ОВП, мВ",
                "config_group": [
                    "AnalogInput",
                    "Вход"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -200,
                    200
                ],
                "name": "redox_correction",
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
                "address": "038h",
                "byte_timeout": 0,
                "comment": "Поправка к показаниям температуры, °C",
                "config_group": [
                    "Sensor",
                    "Термодатчик"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -10,
                    10
                ],
                "name": "t_value_for_correction",
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
                "address": "100h",
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
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "101h",
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
                    2
                ],
                "name": "relay1_binding",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "pH/ОВП",
                    "1": "Температура",
                    "2": "Неисправность"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "102h",
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
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "103h",
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
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "104h",
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
                "address": "106h",
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
                "address": "108h",
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
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "109h",
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
                    2
                ],
                "name": "relay2_binding",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "pH/ОВП",
                    "1": "Температура",
                    "2": "Неисправность"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "10Ah",
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
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "10Bh",
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
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "10Ch",
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
                "address": "10Eh",
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
                "address": "150h",
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
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "151h",
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
                    1
                ],
                "name": "current_output1_binding",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "pH/ОВП",
                    "1": "Температура"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "152h",
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
                    -2000,
                    2000
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
                "address": "154h",
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
                    -2000,
                    2000
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
                "address": "161h",
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
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "158h",
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
                "request_delay": 1,
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
                "address": "159h",
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
                    1
                ],
                "name": "current_output2_binding",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "pH/ОВП",
                    "1": "Температура"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "15Ah",
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
                    -2000,
                    2000
                ],
                "name": "current_output2_min_ip",
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
                "address": "15Ch",
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
                    -2000,
                    2000
                ],
                "name": "current_output2_max_ip",
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
                "address": "165h",
                "byte_timeout": 0,
                "comment": "Токовый выход 2: ток при неисправности",
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
                "name": "current_output2_error_level",
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
                "write_func": 16
            },
            {
                "access": "ReadOnly",
                "address": "200h",
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
                "priority": 10,
                "read_func": 4,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "204h",
                "byte_timeout": 0,
                "comment": "ЭДС электродной системы, мВ",
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
                "name": "ch1_E_value",
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
                "address": "20Ch",
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
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "20Eh",
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
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "210h",
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
                "address": "211h",
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
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "210h",
                "byte_timeout": 0,
                "comment": "Неисправность электродной системы",
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
                "name": "error_electrode",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 4,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "use_bit_extraction": true,
                "values": {
                    "0": "норма",
                    "1": "ошибка"
                },
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "210h",
                "byte_timeout": 0,
                "comment": "Неисправность датчика температуры",
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
                "name": "error_t_sensor",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 4,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "use_bit_extraction": true,
                "values": {
                    "0": "норма",
                    "1": "ошибка"
                },
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "210h",
                "byte_timeout": 0,
                "comment": "Обрыв цепи токового выхода",
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
                "name": "error_current_output",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 4,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "use_bit_extraction": true,
                "values": {
                    "0": "норма",
                    "1": "ошибка"
                },
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "214h",
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
        "template": "Zolt-51v2"
    },
    "id": "Zolt-51",
    "name": "Zolt-51v2",
    "producer": "Vexlor Works",
    "version": "20211018090000"
}
