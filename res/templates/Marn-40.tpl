{
    "comment": "Преобразователь УЭП Marn-40 с таблицей датчиков и токовым выходом",
    "device": {
        "address": 3,
        "enabled": true,
        "name": "Marn-40",
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
                "value": 3,
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
                    15
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
                    "2": "AnalogInput",
                    "4": "Sensor",
                    "8": "AnalogOut"
                },
                "write_func": 0
            },
            {
                "access": "ReadWrite",
                "address": "02Ah",
                "byte_timeout": 0,
                "comment": "Постоянная датчика, 1/см",
                "config_group": [
                    "AnalogInput",
                    "Вход"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0.001,
                    100
                ],
                "name": "sensor_1_constant",
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
                "write_func": 6
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
                "write_func": 6
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
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "03Ah",
                "byte_timeout": 0,
                "comment": "Температурный коэффициент, %/°C",
                "config_group": [
                    "AnalogInput",
                    "Вход"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    10
                ],
                "name": "compensation_ratio_1",
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
                "address": "03Ch",
                "byte_timeout": 0,
                "comment": "Температура приведения, °C",
                "config_group": [
                    "AnalogInput",
                    "Вход"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    100
                ],
                "name": "t_reduction_1",
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
                "write_func": 6
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
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "02Fh",
                "byte_timeout": 0,
                "comment": "Номер датчика из таблицы постоянных",
                "config_group": [
                    "AnalogInput",
                    "Вход"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    1,
                    16
                ],
                "name": "sensor_number",
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
                "address": "02Dh",
                "byte_timeout": 0,
                "comment": "Ускорение фильтра УЭП при резком изменении",
                "config_group": [
                    "AnalogInput",
                    "Вход"
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
                "name": "filtr_conduct_accel",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "use_bit_extraction": true,
                "values": {
                    "0": "выключено",
                    "1": "включено"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "02Dh",
                "byte_timeout": 0,
                "comment": "Ускорение фильтра температуры при резком изменении",
                "config_group": [
                    "AnalogInput",
                    "Вход"
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
                "name": "filtr_temp_accel",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "use_bit_extraction": true,
                "values": {
                    "0": "выключено",
                    "1": "включено"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "02Eh",
                "byte_timeout": 0,
                "comment": "Пересчет УЭП в солесодержание",
                "config_group": [
                    "AnalogInput",
                    "Вход"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    2
                ],
                "name": "conduct_recalc",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "выключен",
                    "1": "по коэффициенту",
                    "2": "по точке"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "030h",
                "address_offset": 0,
                "byte_timeout": 0,
                "comment": "УЭП точки пересчета, мкСм/см",
                "config_group": [
                    "AnalogInput",
                    "Вход"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    100000
                ],
                "name": "conduct_for_recalc",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "registers_count": 4,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "float32",
                "tags_group": [
                    "conduct_for_recalc",
                    "recalc_value"
                ],
                "type": "separate",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "030h",
                "address_offset": 2,
                "byte_timeout": 0,
                "comment": "Солесодержание в точке пересчета, мг/л",
                "config_group": [
                    "AnalogInput",
                    "Вход"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    100000
                ],
                "name": "recalc_value",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "registers_count": 4,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "float32",
                "tags_group": [
                    "conduct_for_recalc",
                    "recalc_value"
                ],
                "type": "separate",
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
                "write_func": 6
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
                    "0": "УЭП",
                    "1": "Температура",
                    "2": "Солесодержание"
                },
                "write_func": 6
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
                "access": "ReadOnly",
                "address": "200h",
                "byte_timeout": 0,
                "comment": "УЭП, мкСм/см",
                "config_group": [
                    "Channel",
                    "Канал 1"
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
                "comment": "Солесодержание по пересчету, мг/л",
                "config_group": [
                    "Channel",
                    "Канал 1"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    100000
                ],
                "name": "ch1_C_value",
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
                "comment": "Сопротивление, МОм",
                "config_group": [
                    "Channel",
                    "Канал 1"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1000
                ],
                "name": "ch1_R_value",
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
            }
        ],
        "template": "Marn-40"
    },
    "id": "Marn-40",
    "name": "Marn-40",
    "producer": "Vexlor Works",
    "version": "20181010090000"
}
