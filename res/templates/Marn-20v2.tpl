{
    "comment": "Преобразователь УЭП Marn-20 с токовым выходом (версия 2)",
    "device": {
        "address": 3,
        "enabled": true,
        "modbus_id": "Marn-20",
        "name": "Marn-20v2",
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
                "write_func": 6
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
        "template": "Marn-20v2"
    },
    "id": "Marn-20",
    "name": "Marn-20v2",
    "producer": "Vexlor Works",
    "version": "20240212140000"
}
