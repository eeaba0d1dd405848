{
    "comment": "Анализатор натрия Brod-5 с архивом и журналом градуировок (версия 2)",
    "device": {
        "address": 2,
        "enabled": true,
        "name": "Brod-5v2",
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
                "comment": "Адрес прибора в сети Modbus",
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
                    5
                ],
                "name": "measure_mode",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Концентрация натрия",
                    "1": "pNa",
                    "2": "pH",
                    "3": "Температура",
                    "4": "График",
                    "5": "Архивный график"
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
                    "1": "при срабатывании реле",
                    "2": "при ошибке",
                    "3": "при срабатывании реле и при ошибке"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "00Bh",
                "byte_timeout": 0,
                "comment": "Архивный график: параметр сплошной линии",
                "config_group": [
                    "ArchPlot",
                    "Архивный график"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    3
                ],
                "name": "arch_plot_solid_line",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Концентрация натрия",
                    "1": "pH",
                    "2": "Температура",
                    "3": "не отображается"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "00Ch",
                "byte_timeout": 0,
                "comment": "Архивный график: параметр пунктирной линии",
                "config_group": [
                    "ArchPlot",
                    "Архивный график"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    3
                ],
                "name": "arch_plot_dotted_line",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Концентрация натрия",
                    "1": "pH",
                    "2": "Температура",
                    "3": "не отображается"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "013h",
                "byte_timeout": 0,
                "comment": "Параметр графика на экране прибора",
                "config_group": [
                    "Plot",
                    "График"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    2
                ],
                "name": "graph_param",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "концентрация натрия",
                    "1": "pH",
                    "2": "температура"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "010h",
                "byte_timeout": 0,
                "comment": "Удержание выходов на время обслуживания",
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
                "name": "hold",
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
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "011h",
                "byte_timeout": 0,
                "comment": "Автоматическое снятие удержания выходов через, мин (0 - не снимать)",
                "config_group": [
                    "Control",
                    "Управление"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    120
                ],
                "name": "hold_time",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
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
                "address": "026h",
                "byte_timeout": 0,
                "comment": "Единицы индикации концентрации натрия",
                "config_group": [
                    "AnalogInput",
                    "Вход"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    3
                ],
                "name": "indication_mode_1",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "мкг/л",
                    "1": "мг/л",
                    "2": "мкмоль/л",
                    "3": "pNa"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "022h",
                "byte_timeout": 0,
                "comment": "Положение десятичной точки при индикации",
                "config_group": [
                    "AnalogInput",
                    "Вход"
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
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "0",
                    "1": "0.0",
                    "2": "0.00",
                    "3": "0.000"
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
                    255
                ],
                "name": "average_time_1",
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
                "name": "compensation_mode_1",
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
                "name": "hand_t_1",
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
                "comment": "Координата изопотенциальной точки pNaи",
                "config_group": [
                    "Calibration",
                    "Градуировка по натрию"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -2,
                    14
                ],
                "name": "isopotential_px_1",
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
                    "Calibration",
                    "Градуировка по натрию"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -1000,
                    1000
                ],
                "name": "isopotential_e_1",
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
                "comment": "Крутизна натриевого электрода S, %",
                "config_group": [
                    "Calibration",
                    "Градуировка по натрию"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    50,
                    120
                ],
                "name": "slope_1",
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
                "address": "030h",
                "byte_timeout": 0,
                "comment": "pNa градуировочного раствора 1",
                "config_group": [
                    "Calibration",
                    "Градуировка по натрию"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    8
                ],
                "name": "buffer1_1",
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
                "address": "032h",
                "byte_timeout": 0,
                "comment": "pNa градуировочного раствора 2",
                "config_group": [
                    "Calibration",
                    "Градуировка по натрию"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    8
                ],
                "name": "buffer2_1",
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
                    4
                ],
                "name": "resistor_type_1",
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
                    "3": "50М",
                    "4": "Pt500"
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
                    255
                ],
                "name": "average_time_t_1",
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
                "address": "036h",
                "byte_timeout": 0,
                "comment": "Сопротивление термодатчика при 0 °C, Ом",
                "config_group": [
                    "Sensor",
                    "Термодатчик"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    40,
                    1200
                ],
                "name": "ts1_resistance0",
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
                "name": "t1_value_for_correction",
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
                "address": "061h",
                "byte_timeout": 0,
                "comment": "Время усреднения pH, с",
                "config_group": [
                    "AnalogInput",
                    "Вход pH"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    1,
                    255
                ],
                "name": "ph_average_time",
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
                "address": "062h",
                "byte_timeout": 0,
                "comment": "Положение десятичной точки при индикации pH",
                "config_group": [
                    "AnalogInput",
                    "Вход pH"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    3
                ],
                "name": "ph_decimal_point",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "0",
                    "1": "0.0",
                    "2": "0.00",
                    "3": "0.000"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "074h",
                "byte_timeout": 0,
                "comment": "Минимально допустимый pH подщелачивания пробы",
                "config_group": [
                    "AnalogInput",
                    "Вход pH"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    7,
                    14
                ],
                "name": "ph_min_alarm",
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
                "address": "06Ah",
                "byte_timeout": 0,
                "comment": "Координата изопотенциальной точки pHи",
                "config_group": [
                    "Calibration",
                    "Градуировка по pH"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    14
                ],
                "name": "ph_isopotential",
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
                "address": "06Ch",
                "byte_timeout": 0,
                "comment": "Координата изопотенциальной точки Eи (pH), мВ",
                "config_group": [
                    "Calibration",
                    "Градуировка по pH"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -1000,
                    1000
                ],
                "name": "ph_isopotential_e",
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
                "address": "06Eh",
                "byte_timeout": 0,
                "comment": "Крутизна pH-электрода S, %",
                "config_group": [
                    "Calibration",
                    "Градуировка по pH"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    50,
                    120
                ],
                "name": "ph_slope",
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
                "address": "070h",
                "byte_timeout": 0,
                "comment": "pH буферного раствора 1",
                "config_group": [
                    "Calibration",
                    "Градуировка по pH"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    14
                ],
                "name": "ph_buffer1",
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
                "address": "072h",
                "byte_timeout": 0,
                "comment": "pH буферного раствора 2",
                "config_group": [
                    "Calibration",
                    "Градуировка по pH"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    14
                ],
                "name": "ph_buffer2",
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
                "address": "168h",
                "byte_timeout": 0,
                "comment": "Режим градуировки",
                "config_group": [
                    "Calibration",
                    "Автоматическая градуировка"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "calibr_mode",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "ручная",
                    "1": "автоматическая"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "169h",
                "byte_timeout": 0,
                "comment": "Период автоматической градуировки, ч",
                "config_group": [
                    "Calibration",
                    "Автоматическая градуировка"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    1,
                    720
                ],
                "name": "calibr_period",
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
                "address": "16Ah",
                "byte_timeout": 0,
                "comment": "Длительность подачи градуировочного раствора, мин",
                "config_group": [
                    "Calibration",
                    "Автоматическая градуировка"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    1,
                    60
                ],
                "name": "calibr_duration",
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
                "address": "16Bh",
                "byte_timeout": 0,
                "comment": "Время промывки после градуировки, мин",
                "config_group": [
                    "Calibration",
                    "Автоматическая градуировка"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    1,
                    60
                ],
                "name": "calibr_wash_time",
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
                "address": "040h",
                "byte_timeout": 0,
                "comment": "Масштаб: график, концентрация натрия",
                "config_group": [
                    "Plot",
                    "график, концентрация натрия"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "plot_1_autoscaling",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "ручное",
                    "1": "автоматическое"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "041h",
                "byte_timeout": 0,
                "comment": "Масштаб: график, pH",
                "config_group": [
                    "Plot",
                    "график, pH"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "plot_ph_autoscaling",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "ручное",
                    "1": "автоматическое"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "042h",
                "byte_timeout": 0,
                "comment": "Масштаб: график, температура",
                "config_group": [
                    "Plot",
                    "график, температура"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "plot_t1_autoscaling",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "ручное",
                    "1": "автоматическое"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "043h",
                "byte_timeout": 0,
                "comment": "Масштаб: архивный график, концентрация натрия",
                "config_group": [
                    "ArchPlot",
                    "архивный график, концентрация натрия"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "arch_plot_1_autoscaling",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "ручное",
                    "1": "автоматическое"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "044h",
                "byte_timeout": 0,
                "comment": "Масштаб: архивный график, pH",
                "config_group": [
                    "ArchPlot",
                    "архивный график, pH"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "arch_plot_ph_autoscaling",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "ручное",
                    "1": "автоматическое"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "045h",
                "byte_timeout": 0,
                "comment": "Масштаб: архивный график, температура",
                "config_group": [
                    "ArchPlot",
                    "архивный график, температура"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "arch_plot_t1_autoscaling",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "ручное",
                    "1": "автоматическое"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "046h",
                "byte_timeout": 0,
                "comment": "Нижняя граница шкалы: график, концентрация натрия",
                "config_group": [
                    "Plot",
                    "график, концентрация натрия"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    100000
                ],
                "name": "plot_1_min_autoscaling",
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
                "comment": "Верхняя граница шкалы: график, концентрация натрия",
                "config_group": [
                    "Plot",
                    "график, концентрация натрия"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    100000
                ],
                "name": "plot_1_max_autoscaling",
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
                "address": "04Ah",
                "byte_timeout": 0,
                "comment": "Нижняя граница шкалы: график, pH",
                "config_group": [
                    "Plot",
                    "график, pH"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    14
                ],
                "name": "plot_ph_min_autoscaling",
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
                "address": "04Ch",
                "byte_timeout": 0,
                "comment": "Верхняя граница шкалы: график, pH",
                "config_group": [
                    "Plot",
                    "график, pH"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    14
                ],
                "name": "plot_ph_max_autoscaling",
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
                "comment": "Нижняя граница шкалы: график, температура",
                "config_group": [
                    "Plot",
                    "график, температура"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -10,
                    150
                ],
                "name": "plot_t1_min_autoscaling",
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
                "address": "050h",
                "byte_timeout": 0,
                "comment": "Верхняя граница шкалы: график, температура",
                "config_group": [
                    "Plot",
                    "график, температура"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -10,
                    150
                ],
                "name": "plot_t1_max_autoscaling",
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
                "address": "052h",
                "byte_timeout": 0,
                "comment": "Нижняя граница шкалы: архивный график, концентрация натрия",
                "config_group": [
                    "ArchPlot",
                    "архивный график, концентрация натрия"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    100000
                ],
                "name": "arch_plot_1_min_autoscaling",
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
                "address": "054h",
                "byte_timeout": 0,
                "comment": "Верхняя граница шкалы: архивный график, концентрация натрия",
                "config_group": [
                    "ArchPlot",
                    "архивный график, концентрация натрия"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    100000
                ],
                "name": "arch_plot_1_max_autoscaling",
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
                "address": "056h",
                "byte_timeout": 0,
                "comment": "Нижняя граница шкалы: архивный график, pH",
                "config_group": [
                    "ArchPlot",
                    "архивный график, pH"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    14
                ],
                "name": "arch_plot_ph_min_autoscaling",
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
                "address": "058h",
                "byte_timeout": 0,
                "comment": "Верхняя граница шкалы: архивный график, pH",
                "config_group": [
                    "ArchPlot",
                    "архивный график, pH"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    14
                ],
                "name": "arch_plot_ph_max_autoscaling",
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
                "address": "05Ah",
                "byte_timeout": 0,
                "comment": "Нижняя граница шкалы: архивный график, температура",
                "config_group": [
                    "ArchPlot",
                    "архивный график, температура"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -10,
                    150
                ],
                "name": "arch_plot_t1_min_autoscaling",
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
                "address": "05Ch",
                "byte_timeout": 0,
                "comment": "Верхняя граница шкалы: архивный график, температура",
                "config_group": [
                    "ArchPlot",
                    "архивный график, температура"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -10,
                    150
                ],
                "name": "arch_plot_t1_max_autoscaling",
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
                    "Реле 1"
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
                    "1": "включение при превышении уставки",
                    "2": "включение при понижении уставки"
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
                    "Реле 1"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    4
                ],
                "name": "relay1_binding",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Концентрация натрия",
                    "1": "pH",
                    "2": "Температура",
                    "3": "Ошибка прибора",
                    "4": "Градуировка"
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
                    "Реле 1"
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
                    "Реле 1"
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
                    "Реле 1"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -50,
                    100000
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
                    "Реле 1"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    100000
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
                    "Реле 2"
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
                    "1": "включение при превышении уставки",
                    "2": "включение при понижении уставки"
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
                    "Реле 2"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    4
                ],
                "name": "relay2_binding",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Концентрация натрия",
                    "1": "pH",
                    "2": "Температура",
                    "3": "Ошибка прибора",
                    "4": "Градуировка"
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
                    "Реле 2"
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
                    "Реле 2"
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
                    "Реле 2"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -50,
                    100000
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
                    "Реле 2"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    100000
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
                "address": "110h",
                "byte_timeout": 0,
                "comment": "Реле 3: функция",
                "config_group": [
                    "DigitalOut",
                    "Реле 3"
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
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "выключено",
                    "1": "включение при превышении уставки",
                    "2": "включение при понижении уставки"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "111h",
                "byte_timeout": 0,
                "comment": "Реле 3: контролируемый параметр",
                "config_group": [
                    "DigitalOut",
                    "Реле 3"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    4
                ],
                "name": "relay3_binding",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Концентрация натрия",
                    "1": "pH",
                    "2": "Температура",
                    "3": "Ошибка прибора",
                    "4": "Градуировка"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "112h",
                "byte_timeout": 0,
                "comment": "Реле 3: задержка включения, с",
                "config_group": [
                    "DigitalOut",
                    "Реле 3"
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
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "113h",
                "byte_timeout": 0,
                "comment": "Реле 3: задержка выключения, с",
                "config_group": [
                    "DigitalOut",
                    "Реле 3"
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
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "114h",
                "byte_timeout": 0,
                "comment": "Реле 3: уставка",
                "config_group": [
                    "DigitalOut",
                    "Реле 3"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -50,
                    100000
                ],
                "name": "relay3_setpoint",
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
                "address": "116h",
                "byte_timeout": 0,
                "comment": "Реле 3: гистерезис",
                "config_group": [
                    "DigitalOut",
                    "Реле 3"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    100000
                ],
                "name": "relay3_hysteresis",
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
                "address": "118h",
                "byte_timeout": 0,
                "comment": "Реле 4: функция",
                "config_group": [
                    "DigitalOut",
                    "Реле 4"
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
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "выключено",
                    "1": "включение при превышении уставки",
                    "2": "включение при понижении уставки"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "119h",
                "byte_timeout": 0,
                "comment": "Реле 4: контролируемый параметр",
                "config_group": [
                    "DigitalOut",
                    "Реле 4"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    4
                ],
                "name": "relay4_binding",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Концентрация натрия",
                    "1": "pH",
                    "2": "Температура",
                    "3": "Ошибка прибора",
                    "4": "Градуировка"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "11Ah",
                "byte_timeout": 0,
                "comment": "Реле 4: задержка включения, с",
                "config_group": [
                    "DigitalOut",
                    "Реле 4"
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
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "11Bh",
                "byte_timeout": 0,
                "comment": "Реле 4: задержка выключения, с",
                "config_group": [
                    "DigitalOut",
                    "Реле 4"
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
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "11Ch",
                "byte_timeout": 0,
                "comment": "Реле 4: уставка",
                "config_group": [
                    "DigitalOut",
                    "Реле 4"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -50,
                    100000
                ],
                "name": "relay4_setpoint",
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
                "address": "11Eh",
                "byte_timeout": 0,
                "comment": "Реле 4: гистерезис",
                "config_group": [
                    "DigitalOut",
                    "Реле 4"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    100000
                ],
                "name": "relay4_hysteresis",
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
                    2
                ],
                "name": "current_output1_binding",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Концентрация натрия",
                    "1": "pH",
                    "2": "Температура"
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
                    -50,
                    100000
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
                    -50,
                    100000
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
                "address": "160h",
                "byte_timeout": 0,
                "comment": "Токовый выход 1: состояние при удержании",
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
                "name": "current_output1_hold_state",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "не удерживается",
                    "1": "последнее значение",
                    "2": "фиксированное значение"
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
                    2
                ],
                "name": "current_output2_binding",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Концентрация натрия",
                    "1": "pH",
                    "2": "Температура"
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
                    -50,
                    100000
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
                    -50,
                    100000
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
                "address": "164h",
                "byte_timeout": 0,
                "comment": "Токовый выход 2: состояние при удержании",
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
                "name": "current_output2_hold_state",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "не удерживается",
                    "1": "последнее значение",
                    "2": "фиксированное значение"
                },
                "write_func": 16
            },
            {
                "access": "ReadOnly",
                "address": "200h",
                "byte_timeout": 0,
                "comment": "Концентрация натрия",
                "config_group": [
                    "Channel",
                    "Натрий"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    100000
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
                "comment": "Температура пробы, °C",
                "config_group": [
                    "Channel",
                    "Натрий"
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
                "comment": "ЭДС натриевого электрода, мВ",
                "config_group": [
                    "Channel",
                    "Натрий"
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
                "address": "206h",
                "byte_timeout": 0,
                "comment": "pH пробы после подщелачивания",
                "config_group": [
                    "Channel",
                    "pH"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    14
                ],
                "name": "ch1_pH_value",
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
                "address": "218h",
                "byte_timeout": 0,
                "comment": "pNa пробы",
                "config_group": [
                    "Channel",
                    "Натрий"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -2,
                    10
                ],
                "name": "ch1_pNa_value",
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
        "template": "Brod-5v2"
    },
    "id": "Brod-5",
    "name": "Brod-5v2",
    "producer": "Vexlor Works",
    "version": "20230927100000"
}
