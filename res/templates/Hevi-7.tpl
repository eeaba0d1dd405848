{
    "comment": "Анализатор ионов двухканальный Hevi-7 с архивом и журналом градуировок",
    "device": {
        "address": 2,
        "enabled": true,
        "modbus_id": "Hevi-7",
        "name": "Hevi-7",
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
                    "0": "Канал 1",
                    "1": "Канал 2",
                    "2": "Каналы 1 и 2",
                    "3": "График канала 1",
                    "4": "График канала 2",
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
                "address": "00Ah",
                "byte_timeout": 0,
                "comment": "Внешний блок реле Rumo-5",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "int16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "rumo_5",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "int16",
                "values": {
                    "0": "не подключен",
                    "1": "подключен"
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
                    4
                ],
                "name": "arch_plot_solid_line",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Канал 1: pX/концентрация",
                    "1": "Канал 2: pX/концентрация",
                    "2": "Канал 1: температура",
                    "3": "Канал 2: температура",
                    "4": "не отображается"
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
                    4
                ],
                "name": "arch_plot_dotted_line",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Канал 1: pX/концентрация",
                    "1": "Канал 2: pX/концентрация",
                    "2": "Канал 1: температура",
                    "3": "Канал 2: температура",
                    "4": "не отображается"
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
                "comment": "Режим измерения (канал 1)",
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
                "name": "input_mode_1",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "pX",
                    "1": "Концентрация",
                    "2": "ЭДС, мВ"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "026h",
                "byte_timeout": 0,
                "comment": "Единицы индикации концентрации (канал 1)",
                "config_group": [
                    "AnalogInput",
                    "Вход 1"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    5
                ],
                "name": "indication_mode_1",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "моль/л",
                    "1": "ммоль/л",
                    "2": "мкмоль/л",
                    "3": "г/л",
                    "4": "мг/л",
                    "5": "мкг/л"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "027h",
                "byte_timeout": 0,
                "comment": "Определяемый ион (канал 1)",
                "config_group": [
                    "AnalogInput",
                    "Вход 1"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    7
                ],
                "name": "ion_type_1",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Na+",
                    "1": "K+",
                    "2": "Ca2+",
                    "3": "NH4+",
                    "4": "NO3-",
                    "5": "Cl-",
                    "6": "F-",
                    "7": "другой ион"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "03Ah",
                "byte_timeout": 0,
                "comment": "Заряд иона (канал 1)",
                "config_group": [
                    "AnalogInput",
                    "Вход 1"
                ],
                "device_type": "int16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -3,
                    3
                ],
                "name": "ion_charge_1",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "int16",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "034h",
                "byte_timeout": 0,
                "comment": "Молярная масса иона, г/моль (канал 1)",
                "config_group": [
                    "AnalogInput",
                    "Вход 1"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    1,
                    500
                ],
                "name": "molar_mass_1",
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
                "comment": "Положение десятичной точки при индикации (канал 1)",
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
                "comment": "Время усреднения результата, с (канал 1)",
                "config_group": [
                    "AnalogInput",
                    "Вход 1"
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
                "comment": "Режим термокомпенсации (канал 1)",
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
                "comment": "Температура ручной термокомпенсации, °C (канал 1)",
                "config_group": [
                    "AnalogInput",
                    "Вход 1"
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
                "comment": "Координата изопотенциальной точки pXи (канал 1)",
                "config_group": [
                    "Calibration",
                    "Градуировка, канал 1"
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
                "comment": "Координата изопотенциальной точки Eи, мВ (канал 1)",
                "config_group": [
                    "Calibration",
                    "Градуировка, канал 1"
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
                "comment": "Крутизна электродной системы S, % (канал 1)",
                "config_group": [
                    "Calibration",
                    "Градуировка, канал 1"
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
                "comment": "pX градуировочного раствора 1 (канал 1)",
                "config_group": [
                    "Calibration",
                    "Градуировка, канал 1"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -2,
                    14
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
                "comment": "pX градуировочного раствора 2 (канал 1)",
                "config_group": [
                    "Calibration",
                    "Градуировка, канал 1"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -2,
                    14
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
                "comment": "Тип термосопротивления (канал 1)",
                "config_group": [
                    "Sensor",
                    "Термодатчик 1"
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
                "comment": "Время усреднения температуры, с (канал 1)",
                "config_group": [
                    "Sensor",
                    "Термодатчик 1"
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
                "comment": "Сопротивление термодатчика при 0 °C, Ом (канал 1)",
                "config_group": [
                    "Sensor",
                    "Термодатчик 1"
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
                "comment": "Поправка к показаниям температуры, °C (канал 1)",
                "config_group": [
                    "Sensor",
                    "Термодатчик 1"
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
                "address": "180h",
                "byte_timeout": 0,
                "comment": "ЭДС в растворе 1 при градуировке, мВ (канал 1)",
                "config_group": [
                    "Calibration",
                    "Градуировка, канал 1"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -2000,
                    2000
                ],
                "name": "calibr_e1_1",
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
                "address": "182h",
                "byte_timeout": 0,
                "comment": "Температура раствора 1 при градуировке, °C (канал 1)",
                "config_group": [
                    "Calibration",
                    "Градуировка, канал 1"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -50,
                    200
                ],
                "name": "calibr_t1_1",
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
                "address": "184h",
                "byte_timeout": 0,
                "comment": "ЭДС в растворе 2 при градуировке, мВ (канал 1)",
                "config_group": [
                    "Calibration",
                    "Градуировка, канал 1"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -2000,
                    2000
                ],
                "name": "calibr_e2_1",
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
                "address": "186h",
                "byte_timeout": 0,
                "comment": "Температура раствора 2 при градуировке, °C (канал 1)",
                "config_group": [
                    "Calibration",
                    "Градуировка, канал 1"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -50,
                    200
                ],
                "name": "calibr_t2_1",
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
                "address": "188h",
                "byte_timeout": 0,
                "comment": "Межградуировочный интервал, сут (канал 1)",
                "config_group": [
                    "Calibration",
                    "Градуировка, канал 1"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    365
                ],
                "name": "calibr_interval_1",
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
                "comment": "Масштаб: график канала 1, pX/концентрация",
                "config_group": [
                    "Plot",
                    "график канала 1, pX/концентрация"
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
                "comment": "Масштаб: график канала 1, температура",
                "config_group": [
                    "Plot",
                    "график канала 1, температура"
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
                "address": "042h",
                "byte_timeout": 0,
                "comment": "Масштаб: архивный график канала 1, pX/концентрация",
                "config_group": [
                    "ArchPlot",
                    "архивный график канала 1, pX/концентрация"
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
                "address": "043h",
                "byte_timeout": 0,
                "comment": "Масштаб: архивный график канала 1, температура",
                "config_group": [
                    "ArchPlot",
                    "архивный график канала 1, температура"
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
                "address": "044h",
                "byte_timeout": 0,
                "comment": "Нижняя граница шкалы: график канала 1, pX/концентрация",
                "config_group": [
                    "Plot",
                    "график канала 1, pX/концентрация"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -2000,
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
                "address": "046h",
                "byte_timeout": 0,
                "comment": "Верхняя граница шкалы: график канала 1, pX/концентрация",
                "config_group": [
                    "Plot",
                    "график канала 1, pX/концентрация"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -2000,
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
                "address": "048h",
                "byte_timeout": 0,
                "comment": "Нижняя граница шкалы: график канала 1, температура",
                "config_group": [
                    "Plot",
                    "график канала 1, температура"
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
                "address": "04Ah",
                "byte_timeout": 0,
                "comment": "Верхняя граница шкалы: график канала 1, температура",
                "config_group": [
                    "Plot",
                    "график канала 1, температура"
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
                "address": "04Ch",
                "byte_timeout": 0,
                "comment": "Нижняя граница шкалы: архивный график канала 1, pX/концентрация",
                "config_group": [
                    "ArchPlot",
                    "архивный график канала 1, pX/концентрация"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -2000,
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
                "address": "04Eh",
                "byte_timeout": 0,
                "comment": "Верхняя граница шкалы: архивный график канала 1, pX/концентрация",
                "config_group": [
                    "ArchPlot",
                    "архивный график канала 1, pX/концентрация"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -2000,
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
                "address": "050h",
                "byte_timeout": 0,
                "comment": "Нижняя граница шкалы: архивный график канала 1, температура",
                "config_group": [
                    "ArchPlot",
                    "архивный график канала 1, температура"
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
                "address": "052h",
                "byte_timeout": 0,
                "comment": "Верхняя граница шкалы: архивный график канала 1, температура",
                "config_group": [
                    "ArchPlot",
                    "архивный график канала 1, температура"
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
                "address": "060h",
                "byte_timeout": 0,
                "comment": "Режим измерения (канал 2)",
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
                "name": "input_mode_2",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "pX",
                    "1": "Концентрация",
                    "2": "ЭДС, мВ"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "066h",
                "byte_timeout": 0,
                "comment": "Единицы индикации концентрации (канал 2)",
                "config_group": [
                    "AnalogInput",
                    "Вход 2"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    5
                ],
                "name": "indication_mode_2",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "моль/л",
                    "1": "ммоль/л",
                    "2": "мкмоль/л",
                    "3": "г/л",
                    "4": "мг/л",
                    "5": "мкг/л"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "067h",
                "byte_timeout": 0,
                "comment": "Определяемый ион (канал 2)",
                "config_group": [
                    "AnalogInput",
                    "Вход 2"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    7
                ],
                "name": "ion_type_2",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Na+",
                    "1": "K+",
                    "2": "Ca2+",
                    "3": "NH4+",
                    "4": "NO3-",
                    "5": "Cl-",
                    "6": "F-",
                    "7": "другой ион"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "07Ah",
                "byte_timeout": 0,
                "comment": "Заряд иона (канал 2)",
                "config_group": [
                    "AnalogInput",
                    "Вход 2"
                ],
                "device_type": "int16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -3,
                    3
                ],
                "name": "ion_charge_2",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "int16",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "074h",
                "byte_timeout": 0,
                "comment": "Молярная масса иона, г/моль (канал 2)",
                "config_group": [
                    "AnalogInput",
                    "Вход 2"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    1,
                    500
                ],
                "name": "molar_mass_2",
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
                "address": "062h",
                "byte_timeout": 0,
                "comment": "Положение десятичной точки при индикации (канал 2)",
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
                "address": "061h",
                "byte_timeout": 0,
                "comment": "Время усреднения результата, с (канал 2)",
                "config_group": [
                    "AnalogInput",
                    "Вход 2"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    1,
                    255
                ],
                "name": "average_time_2",
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
                "address": "063h",
                "byte_timeout": 0,
                "comment": "Режим термокомпенсации (канал 2)",
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
                "address": "068h",
                "byte_timeout": 0,
                "comment": "Температура ручной термокомпенсации, °C (канал 2)",
                "config_group": [
                    "AnalogInput",
                    "Вход 2"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -10,
                    150
                ],
                "name": "hand_t_2",
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
                "comment": "Координата изопотенциальной точки pXи (канал 2)",
                "config_group": [
                    "Calibration",
                    "Градуировка, канал 2"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -2,
                    14
                ],
                "name": "isopotential_px_2",
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
                "comment": "Координата изопотенциальной точки Eи, мВ (канал 2)",
                "config_group": [
                    "Calibration",
                    "Градуировка, канал 2"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -1000,
                    1000
                ],
                "name": "isopotential_e_2",
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
                "comment": "Крутизна электродной системы S, % (канал 2)",
                "config_group": [
                    "Calibration",
                    "Градуировка, канал 2"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    50,
                    120
                ],
                "name": "slope_2",
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
                "comment": "pX градуировочного раствора 1 (канал 2)",
                "config_group": [
                    "Calibration",
                    "Градуировка, канал 2"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -2,
                    14
                ],
                "name": "buffer1_2",
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
                "comment": "pX градуировочного раствора 2 (канал 2)",
                "config_group": [
                    "Calibration",
                    "Градуировка, канал 2"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -2,
                    14
                ],
                "name": "buffer2_2",
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
                "comment": "Тип термосопротивления (канал 2)",
                "config_group": [
                    "Sensor",
                    "Термодатчик 2"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    4
                ],
                "name": "resistor_type_2",
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
                "address": "065h",
                "byte_timeout": 0,
                "comment": "Время усреднения температуры, с (канал 2)",
                "config_group": [
                    "Sensor",
                    "Термодатчик 2"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    1,
                    255
                ],
                "name": "average_time_t_2",
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
                "address": "076h",
                "byte_timeout": 0,
                "comment": "Сопротивление термодатчика при 0 °C, Ом (канал 2)",
                "config_group": [
                    "Sensor",
                    "Термодатчик 2"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    40,
                    1200
                ],
                "name": "ts2_resistance0",
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
                "address": "078h",
                "byte_timeout": 0,
                "comment": "Поправка к показаниям температуры, °C (канал 2)",
                "config_group": [
                    "Sensor",
                    "Термодатчик 2"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -10,
                    10
                ],
                "name": "t2_value_for_correction",
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
                "address": "190h",
                "byte_timeout": 0,
                "comment": "ЭДС в растворе 1 при градуировке, мВ (канал 2)",
                "config_group": [
                    "Calibration",
                    "Градуировка, канал 2"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -2000,
                    2000
                ],
                "name": "calibr_e1_2",
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
                "address": "192h",
                "byte_timeout": 0,
                "comment": "Температура раствора 1 при градуировке, °C (канал 2)",
                "config_group": [
                    "Calibration",
                    "Градуировка, канал 2"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -50,
                    200
                ],
                "name": "calibr_t1_2",
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
                "address": "194h",
                "byte_timeout": 0,
                "comment": "ЭДС в растворе 2 при градуировке, мВ (канал 2)",
                "config_group": [
                    "Calibration",
                    "Градуировка, канал 2"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -2000,
                    2000
                ],
                "name": "calibr_e2_2",
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
                "address": "196h",
                "byte_timeout": 0,
                "comment": "Температура раствора 2 при градуировке, °C (канал 2)",
                "config_group": [
                    "Calibration",
                    "Градуировка, канал 2"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -50,
                    200
                ],
                "name": "calibr_t2_2",
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
                "address": "198h",
                "byte_timeout": 0,
                "comment": "Межградуировочный интервал, сут (канал 2)",
                "config_group": [
                    "Calibration",
                    "Градуировка, канал 2"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    365
                ],
                "name": "calibr_interval_2",
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
                "address": "080h",
                "byte_timeout": 0,
                "comment": "Масштаб: график канала 2, pX/концентрация",
                "config_group": [
                    "Plot",
                    "график канала 2, pX/концентрация"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "plot_2_autoscaling",
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
                "address": "081h",
                "byte_timeout": 0,
                "comment": "Масштаб: график канала 2, температура",
                "config_group": [
                    "Plot",
                    "график канала 2, температура"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "plot_t2_autoscaling",
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
                "address": "082h",
                "byte_timeout": 0,
                "comment": "Масштаб: архивный график канала 2, pX/концентрация",
                "config_group": [
                    "ArchPlot",
                    "архивный график канала 2, pX/концентрация"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "arch_plot_2_autoscaling",
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
                "address": "083h",
                "byte_timeout": 0,
                "comment": "Масштаб: архивный график канала 2, температура",
                "config_group": [
                    "ArchPlot",
                    "архивный график канала 2, температура"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "arch_plot_t2_autoscaling",
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
                "address": "084h",
                "byte_timeout": 0,
                "comment": "Нижняя граница шкалы: график канала 2, pX/концентрация",
                "config_group": [
                    "Plot",
                    "график канала 2, pX/концентрация"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -2000,
                    100000
                ],
                "name": "plot_2_min_autoscaling",
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
                "address": "086h",
                "byte_timeout": 0,
                "comment": "Верхняя граница шкалы: график канала 2, pX/концентрация",
                "config_group": [
                    "Plot",
                    "график канала 2, pX/концентрация"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -2000,
                    100000
                ],
                "name": "plot_2_max_autoscaling",
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
                "address": "088h",
                "byte_timeout": 0,
                "comment": "Нижняя граница шкалы: график канала 2, температура",
                "config_group": [
                    "Plot",
                    "график канала 2, температура"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -10,
                    150
                ],
                "name": "plot_t2_min_autoscaling",
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
                "address": "08Ah",
                "byte_timeout": 0,
                "comment": "Верхняя граница шкалы: график канала 2, температура",
                "config_group": [
                    "Plot",
                    "график канала 2, температура"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -10,
                    150
                ],
                "name": "plot_t2_max_autoscaling",
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
                "address": "08Ch",
                "byte_timeout": 0,
                "comment": "Нижняя граница шкалы: архивный график канала 2, pX/концентрация",
                "config_group": [
                    "ArchPlot",
                    "архивный график канала 2, pX/концентрация"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -2000,
                    100000
                ],
                "name": "arch_plot_2_min_autoscaling",
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
                "address": "08Eh",
                "byte_timeout": 0,
                "comment": "Верхняя граница шкалы: архивный график канала 2, pX/концентрация",
                "config_group": [
                    "ArchPlot",
                    "архивный график канала 2, pX/концентрация"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -2000,
                    100000
                ],
                "name": "arch_plot_2_max_autoscaling",
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
                "address": "090h",
                "byte_timeout": 0,
                "comment": "Нижняя граница шкалы: архивный график канала 2, температура",
                "config_group": [
                    "ArchPlot",
                    "архивный график канала 2, температура"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -10,
                    150
                ],
                "name": "arch_plot_t2_min_autoscaling",
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
                "address": "092h",
                "byte_timeout": 0,
                "comment": "Верхняя граница шкалы: архивный график канала 2, температура",
                "config_group": [
                    "ArchPlot",
                    "архивный график канала 2, температура"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -10,
                    150
                ],
                "name": "arch_plot_t2_max_autoscaling",
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
                    5
                ],
                "name": "relay1_binding",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Канал 1: pX/концентрация",
                    "1": "Канал 2: pX/концентрация",
                    "2": "Канал 1: температура",
                    "3": "Канал 2: температура",
                    "4": "Ошибка прибора",
                    "5": "Ошибка связи с Rumo-5"
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
                    -2000,
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
                    5
                ],
                "name": "relay2_binding",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Канал 1: pX/концентрация",
                    "1": "Канал 2: pX/концентрация",
                    "2": "Канал 1: температура",
                    "3": "Канал 2: температура",
                    "4": "Ошибка прибора",
                    "5": "Ошибка связи с Rumo-5"
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
                    -2000,
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
                    5
                ],
                "name": "relay3_binding",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Канал 1: pX/концентрация",
                    "1": "Канал 2: pX/концентрация",
                    "2": "Канал 1: температура",
                    "3": "Канал 2: температура",
                    "4": "Ошибка прибора",
                    "5": "Ошибка связи с Rumo-5"
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
                    -2000,
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
                    5
                ],
                "name": "relay4_binding",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Канал 1: pX/концентрация",
                    "1": "Канал 2: pX/концентрация",
                    "2": "Канал 1: температура",
                    "3": "Канал 2: температура",
                    "4": "Ошибка прибора",
                    "5": "Ошибка связи с Rumo-5"
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
                    -2000,
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
                "address": "120h",
                "byte_timeout": 0,
                "comment": "Реле 5: функция",
                "config_group": [
                    "DigitalOut",
                    "Реле 5"
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
                "address": "121h",
                "byte_timeout": 0,
                "comment": "Реле 5: контролируемый параметр",
                "config_group": [
                    "DigitalOut",
                    "Реле 5"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    5
                ],
                "name": "relay5_binding",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Канал 1: pX/концентрация",
                    "1": "Канал 2: pX/концентрация",
                    "2": "Канал 1: температура",
                    "3": "Канал 2: температура",
                    "4": "Ошибка прибора",
                    "5": "Ошибка связи с Rumo-5"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "122h",
                "byte_timeout": 0,
                "comment": "Реле 5: задержка включения, с",
                "config_group": [
                    "DigitalOut",
                    "Реле 5"
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
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "123h",
                "byte_timeout": 0,
                "comment": "Реле 5: задержка выключения, с",
                "config_group": [
                    "DigitalOut",
                    "Реле 5"
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
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "124h",
                "byte_timeout": 0,
                "comment": "Реле 5: уставка",
                "config_group": [
                    "DigitalOut",
                    "Реле 5"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -2000,
                    100000
                ],
                "name": "relay5_setpoint",
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
                "address": "126h",
                "byte_timeout": 0,
                "comment": "Реле 5: гистерезис",
                "config_group": [
                    "DigitalOut",
                    "Реле 5"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    100000
                ],
                "name": "relay5_hysteresis",
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
                "address": "128h",
                "byte_timeout": 0,
                "comment": "Реле 6: функция",
                "config_group": [
                    "DigitalOut",
                    "Реле 6"
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
                "address": "129h",
                "byte_timeout": 0,
                "comment": "Реле 6: контролируемый параметр",
                "config_group": [
                    "DigitalOut",
                    "Реле 6"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    5
                ],
                "name": "relay6_binding",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Канал 1: pX/концентрация",
                    "1": "Канал 2: pX/концентрация",
                    "2": "Канал 1: температура",
                    "3": "Канал 2: температура",
                    "4": "Ошибка прибора",
                    "5": "Ошибка связи с Rumo-5"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "12Ah",
                "byte_timeout": 0,
                "comment": "Реле 6: задержка включения, с",
                "config_group": [
                    "DigitalOut",
                    "Реле 6"
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
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "12Bh",
                "byte_timeout": 0,
                "comment": "Реле 6: задержка выключения, с",
                "config_group": [
                    "DigitalOut",
                    "Реле 6"
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
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "12Ch",
                "byte_timeout": 0,
                "comment": "Реле 6: уставка",
                "config_group": [
                    "DigitalOut",
                    "Реле 6"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -2000,
                    100000
                ],
                "name": "relay6_setpoint",
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
                "address": "12Eh",
                "byte_timeout": 0,
                "comment": "Реле 6: гистерезис",
                "config_group": [
                    "DigitalOut",
                    "Реле 6"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    100000
                ],
                "name": "relay6_hysteresis",
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
                "address": "130h",
                "byte_timeout": 0,
                "comment": "Реле 7: функция",
                "config_group": [
                    "DigitalOut",
                    "Реле 7"
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
                "address": "131h",
                "byte_timeout": 0,
                "comment": "Реле 7: контролируемый параметр",
                "config_group": [
                    "DigitalOut",
                    "Реле 7"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    5
                ],
                "name": "relay7_binding",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Канал 1: pX/концентрация",
                    "1": "Канал 2: pX/концентрация",
                    "2": "Канал 1: температура",
                    "3": "Канал 2: температура",
                    "4": "Ошибка прибора",
                    "5": "Ошибка связи с Rumo-5"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "132h",
                "byte_timeout": 0,
                "comment": "Реле 7: задержка включения, с",
                "config_group": [
                    "DigitalOut",
                    "Реле 7"
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
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "133h",
                "byte_timeout": 0,
                "comment": "Реле 7: задержка выключения, с",
                "config_group": [
                    "DigitalOut",
                    "Реле 7"
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
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "134h",
                "byte_timeout": 0,
                "comment": "Реле 7: уставка",
                "config_group": [
                    "DigitalOut",
                    "Реле 7"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -2000,
                    100000
                ],
                "name": "relay7_setpoint",
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
                "address": "136h",
                "byte_timeout": 0,
                "comment": "Реле 7: гистерезис",
                "config_group": [
                    "DigitalOut",
                    "Реле 7"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    100000
                ],
                "name": "relay7_hysteresis",
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
                "address": "138h",
                "byte_timeout": 0,
                "comment": "Реле 8: функция",
                "config_group": [
                    "DigitalOut",
                    "Реле 8"
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
                "address": "139h",
                "byte_timeout": 0,
                "comment": "Реле 8: контролируемый параметр",
                "config_group": [
                    "DigitalOut",
                    "Реле 8"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    5
                ],
                "name": "relay8_binding",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Канал 1: pX/концентрация",
                    "1": "Канал 2: pX/концентрация",
                    "2": "Канал 1: температура",
                    "3": "Канал 2: температура",
                    "4": "Ошибка прибора",
                    "5": "Ошибка связи с Rumo-5"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "13Ah",
                "byte_timeout": 0,
                "comment": "Реле 8: задержка включения, с",
                "config_group": [
                    "DigitalOut",
                    "Реле 8"
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
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "13Bh",
                "byte_timeout": 0,
                "comment": "Реле 8: задержка выключения, с",
                "config_group": [
                    "DigitalOut",
                    "Реле 8"
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
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "13Ch",
                "byte_timeout": 0,
                "comment": "Реле 8: уставка",
                "config_group": [
                    "DigitalOut",
                    "Реле 8"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -2000,
                    100000
                ],
                "name": "relay8_setpoint",
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
                "address": "13Eh",
                "byte_timeout": 0,
                "comment": "Реле 8: гистерезис",
                "config_group": [
                    "DigitalOut",
                    "Реле 8"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    100000
                ],
                "name": "relay8_hysteresis",
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
                "address": "140h",
                "byte_timeout": 0,
                "comment": "Светодиод 1: функция",
                "config_group": [
                    "DigitalOut",
                    "Светодиод 1"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    2
                ],
                "name": "lightdiod1_function",
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
                "address": "141h",
                "byte_timeout": 0,
                "comment": "Светодиод 1: контролируемый параметр",
                "config_group": [
                    "DigitalOut",
                    "Светодиод 1"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    4
                ],
                "name": "lightdiod1_binding",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Канал 1: pX/концентрация",
                    "1": "Канал 2: pX/концентрация",
                    "2": "Канал 1: температура",
                    "3": "Канал 2: температура",
                    "4": "Ошибка прибора"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "142h",
                "byte_timeout": 0,
                "comment": "Светодиод 1: уставка",
                "config_group": [
                    "DigitalOut",
                    "Светодиод 1"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -2000,
                    100000
                ],
                "name": "lightdiod1_setpoint",
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
                "address": "144h",
                "byte_timeout": 0,
                "comment": "Светодиод 2: функция",
                "config_group": [
                    "DigitalOut",
                    "Светодиод 2"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    2
                ],
                "name": "lightdiod2_function",
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
                "address": "145h",
                "byte_timeout": 0,
                "comment": "Светодиод 2: контролируемый параметр",
                "config_group": [
                    "DigitalOut",
                    "Светодиод 2"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    4
                ],
                "name": "lightdiod2_binding",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Канал 1: pX/концентрация",
                    "1": "Канал 2: pX/концентрация",
                    "2": "Канал 1: температура",
                    "3": "Канал 2: температура",
                    "4": "Ошибка прибора"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "146h",
                "byte_timeout": 0,
                "comment": "Светодиод 2: уставка",
                "config_group": [
                    "DigitalOut",
                    "Светодиод 2"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -2000,
                    100000
                ],
                "name": "lightdiod2_setpoint",
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
                "address": "148h",
                "byte_timeout": 0,
                "comment": "Светодиод 3: функция",
                "config_group": [
                    "DigitalOut",
                    "Светодиод 3"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    2
                ],
                "name": "lightdiod3_function",
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
                "address": "149h",
                "byte_timeout": 0,
                "comment": "Светодиод 3: контролируемый параметр",
                "config_group": [
                    "DigitalOut",
                    "Светодиод 3"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    4
                ],
                "name": "lightdiod3_binding",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Канал 1: pX/концентрация",
                    "1": "Канал 2: pX/концентрация",
                    "2": "Канал 1: температура",
                    "3": "Канал 2: температура",
                    "4": "Ошибка прибора"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "14Ah",
                "byte_timeout": 0,
                "comment": "Светодиод 3: уставка",
                "config_group": [
                    "DigitalOut",
                    "Светодиод 3"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -2000,
                    100000
                ],
                "name": "lightdiod3_setpoint",
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
                "address": "14Ch",
                "byte_timeout": 0,
                "comment": "Светодиод 4: функция",
                "config_group": [
                    "DigitalOut",
                    "Светодиод 4"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    2
                ],
                "name": "lightdiod4_function",
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
                "address": "14Dh",
                "byte_timeout": 0,
                "comment": "Светодиод 4: контролируемый параметр",
                "config_group": [
                    "DigitalOut",
                    "Светодиод 4"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    4
                ],
                "name": "lightdiod4_binding",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Канал 1: pX/концентрация",
                    "1": "Канал 2: pX/концентрация",
                    "2": "Канал 1: температура",
                    "3": "Канал 2: температура",
                    "4": "Ошибка прибора"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "14Eh",
                "byte_timeout": 0,
                "comment": "Светодиод 4: уставка",
                "config_group": [
                    "DigitalOut",
                    "Светодиод 4"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -2000,
                    100000
                ],
                "name": "lightdiod4_setpoint",
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
                    3
                ],
                "name": "current_output1_binding",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Канал 1: pX/концентрация",
                    "1": "Канал 2: pX/концентрация",
                    "2": "Канал 1: температура",
                    "3": "Канал 2: температура"
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
                    -2000,
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
                    3
                ],
                "name": "current_output2_binding",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Канал 1: pX/концентрация",
                    "1": "Канал 2: pX/концентрация",
                    "2": "Канал 1: температура",
                    "3": "Канал 2: температура"
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
                    -2000,
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
                "access": "ReadOnly",
                "address": "200h",
                "byte_timeout": 0,
                "comment": "Канал 1: pX, концентрация или ЭДС (по режиму)",
                "config_group": [
                    "Channel",
                    "Канал 1"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -2000,
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
                "comment": "Канал 1: ЭДС электродной системы, мВ",
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
                "address": "206h",
                "byte_timeout": 0,
                "comment": "Канал 2: pX, концентрация или ЭДС (по режиму)",
                "config_group": [
                    "Channel",
                    "Канал 2"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -2000,
                    100000
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
                "address": "208h",
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
                "priority": 10,
                "read_func": 4,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "20Ah",
                "byte_timeout": 0,
                "comment": "Канал 2: ЭДС электродной системы, мВ",
                "config_group": [
                    "Channel",
                    "Канал 2"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -2000,
                    2000
                ],
                "name": "ch2_E_value",
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
                "address": "212h",
                "byte_timeout": 0,
                "comment": "Состояние светодиодов (битовая маска)",
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
                "name": "lightdiods_outputs",
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
        "template": "Hevi-7"
    },
    "id": "Hevi-7",
    "name": "Hevi-7",
    "producer": "Vexlor Works",
    "version": "20180924120000"
}
