{
    "comment": "Цифровой датчик электропроводности Nengshi (RS-485, Modbus RTU)",
    "device": {
        "address": 1,
        "byteswap_enabled": false,
        "cash_timeout": 150,
        "enabled": true,
        "modbus_id": "Nengshi",
        "name": "Nengshi-CON",
        "polling_period": 1000,
        "priority": 10,
        "protocol": "MODBUS_RTU",
        "response_timeout": 200,
        "tags": [
            {
                "access": "ReadOnly",
                "address": "00h",
                "address_offset": 0,
                "byte_timeout": 0,
                "comment": "Удельная электропроводность (без десятичной точки)",
                "config_group": [
                    "Channel",
                    "Измерения"
                ],
                "device_type": "int16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    32767
                ],
                "name": "ch_con_value",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 4,
                "registers_count": 10,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "int16",
                "tags_group": [
                    "ch_con_value",
                    "con_unit_code",
                    "con_decimal_place",
                    "ch_tds_value",
                    "tds_unit_code",
                    "tds_decimal_place",
                    "ch_t_value",
                    "t_unit_code",
                    "t_decimal_place",
                    "sensor_status"
                ],
                "type": "separate",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "00h",
                "address_offset": 1,
                "byte_timeout": 0,
                "comment": "Код единицы электропроводности",
                "config_group": [
                    "Sensor",
                    "Параметры датчика"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    7,
                    9
                ],
                "name": "con_unit_code",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 4,
                "registers_count": 10,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "tags_group": [
                    "ch_con_value",
                    "con_unit_code",
                    "con_decimal_place",
                    "ch_tds_value",
                    "tds_unit_code",
                    "tds_decimal_place",
                    "ch_t_value",
                    "t_unit_code",
                    "t_decimal_place",
                    "sensor_status"
                ],
                "type": "separate",
                "values": {
                    "7": "мкСм/см",
                    "8": "мСм/см",
                    "9": "См/м"
                },
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "00h",
                "address_offset": 2,
                "byte_timeout": 0,
                "comment": "Число знаков после точки для электропроводности",
                "config_group": [
                    "Sensor",
                    "Параметры датчика"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    4
                ],
                "name": "con_decimal_place",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 4,
                "registers_count": 10,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "tags_group": [
                    "ch_con_value",
                    "con_unit_code",
                    "con_decimal_place",
                    "ch_tds_value",
                    "tds_unit_code",
                    "tds_decimal_place",
                    "ch_t_value",
                    "t_unit_code",
                    "t_decimal_place",
                    "sensor_status"
                ],
                "type": "separate",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "00h",
                "address_offset": 3,
                "byte_timeout": 0,
                "comment": "Солесодержание TDS (без десятичной точки)",
                "config_group": [
                    "Channel",
                    "Измерения"
                ],
                "device_type": "int16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    32767
                ],
                "name": "ch_tds_value",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 4,
                "registers_count": 10,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "int16",
                "tags_group": [
                    "ch_con_value",
                    "con_unit_code",
                    "con_decimal_place",
                    "ch_tds_value",
                    "tds_unit_code",
                    "tds_decimal_place",
                    "ch_t_value",
                    "t_unit_code",
                    "t_decimal_place",
                    "sensor_status"
                ],
                "type": "separate",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "00h",
                "address_offset": 4,
                "byte_timeout": 0,
                "comment": "Код единицы солесодержания",
                "config_group": [
                    "Sensor",
                    "Параметры датчика"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    255
                ],
                "name": "tds_unit_code",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 4,
                "registers_count": 10,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "tags_group": [
                    "ch_con_value",
                    "con_unit_code",
                    "con_decimal_place",
                    "ch_tds_value",
                    "tds_unit_code",
                    "tds_decimal_place",
                    "ch_t_value",
                    "t_unit_code",
                    "t_decimal_place",
                    "sensor_status"
                ],
                "type": "separate",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "00h",
                "address_offset": 5,
                "byte_timeout": 0,
                "comment": "Число знаков после точки для солесодержания",
                "config_group": [
                    "Sensor",
                    "Параметры датчика"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    4
                ],
                "name": "tds_decimal_place",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 4,
                "registers_count": 10,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "tags_group": [
                    "ch_con_value",
                    "con_unit_code",
                    "con_decimal_place",
                    "ch_tds_value",
                    "tds_unit_code",
                    "tds_decimal_place",
                    "ch_t_value",
                    "t_unit_code",
                    "t_decimal_place",
                    "sensor_status"
                ],
                "type": "separate",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "00h",
                "address_offset": 6,
                "byte_timeout": 0,
                "comment": "Температура (без десятичной точки)",
                "config_group": [
                    "Channel",
                    "Измерения"
                ],
                "device_type": "int16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -200,
                    1400
                ],
                "name": "ch_t_value",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 4,
                "registers_count": 10,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "int16",
                "tags_group": [
                    "ch_con_value",
                    "con_unit_code",
                    "con_decimal_place",
                    "ch_tds_value",
                    "tds_unit_code",
                    "tds_decimal_place",
                    "ch_t_value",
                    "t_unit_code",
                    "t_decimal_place",
                    "sensor_status"
                ],
                "type": "separate",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "00h",
                "address_offset": 7,
                "byte_timeout": 0,
                "comment": "Код единицы температуры",
                "config_group": [
                    "Sensor",
                    "Параметры датчика"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    11,
                    12
                ],
                "name": "t_unit_code",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 4,
                "registers_count": 10,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "tags_group": [
                    "ch_con_value",
                    "con_unit_code",
                    "con_decimal_place",
                    "ch_tds_value",
                    "tds_unit_code",
                    "tds_decimal_place",
                    "ch_t_value",
                    "t_unit_code",
                    "t_decimal_place",
                    "sensor_status"
                ],
                "type": "separate",
                "values": {
                    "11": "°C",
                    "12": "°F"
                },
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "00h",
                "address_offset": 8,
                "byte_timeout": 0,
                "comment": "Число знаков после точки для температуры",
                "config_group": [
                    "Sensor",
                    "Параметры датчика"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    4
                ],
                "name": "t_decimal_place",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 4,
                "registers_count": 10,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "tags_group": [
                    "ch_con_value",
                    "con_unit_code",
                    "con_decimal_place",
                    "ch_tds_value",
                    "tds_unit_code",
                    "tds_decimal_place",
                    "ch_t_value",
                    "t_unit_code",
                    "t_decimal_place",
                    "sensor_status"
                ],
                "type": "separate",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "00h",
                "address_offset": 9,
                "byte_timeout": 0,
                "comment": "Слово состояния датчика",
                "config_group": [
                    "State",
                    "Состояние датчика"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    65535
                ],
                "name": "sensor_status",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 4,
                "registers_count": 10,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "tags_group": [
                    "ch_con_value",
                    "con_unit_code",
                    "con_decimal_place",
                    "ch_tds_value",
                    "tds_unit_code",
                    "tds_decimal_place",
                    "ch_t_value",
                    "t_unit_code",
                    "t_decimal_place",
                    "sensor_status"
                ],
                "type": "separate",
                "write_func": 0
            },
            {
                "access": "ReadWrite",
                "address": "1Eh",
                "byte_timeout": 0,
                "comment": "Сетевой адрес датчика",
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
                "server_type": "uint16",
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "1Fh",
                "byte_timeout": 0,
                "comment": "Скорость обмена",
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
                "address": "20h",
                "byte_timeout": 0,
                "comment": "Тип термокомпенсации",
                "config_group": [
                    "Sensor",
                    "Параметры датчика"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "termocomp_type",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Ручная",
                    "1": "Автоматическая"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "21h",
                "byte_timeout": 0,
                "comment": "Температура для ручной термокомпенсации, 0,1 °C",
                "config_group": [
                    "Sensor",
                    "Параметры датчика"
                ],
                "device_type": "int16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1000
                ],
                "name": "manual_t",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "int16",
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "22h",
                "byte_timeout": 0,
                "comment": "Поправка температуры, 0,1 °C",
                "config_group": [
                    "Sensor",
                    "Параметры датчика"
                ],
                "device_type": "int16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -50,
                    50
                ],
                "name": "t_offset",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "int16",
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "23h",
                "byte_timeout": 0,
                "comment": "Время демпфирования, с",
                "config_group": [
                    "Sensor",
                    "Параметры датчика"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    1,
                    60
                ],
                "name": "damping",
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
                "address": "24h",
                "byte_timeout": 0,
                "comment": "Номинальная постоянная ячейки",
                "config_group": [
                    "Sensor",
                    "Параметры датчика"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    3
                ],
                "name": "electrode_constant",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "0,01 1/см",
                    "1": "0,1 1/см",
                    "2": "1,0 1/см",
                    "3": "10,0 1/см"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "25h",
                "byte_timeout": 0,
                "comment": "Температурный коэффициент, 0,01 %/°C",
                "config_group": [
                    "Sensor",
                    "Параметры датчика"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1000
                ],
                "name": "t_coefficient",
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
                "address": "26h",
                "byte_timeout": 0,
                "comment": "Коэффициент пересчёта в TDS, 0,01",
                "config_group": [
                    "Sensor",
                    "Параметры датчика"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    40,
                    100
                ],
                "name": "tds_factor",
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
                "address": "27h",
                "byte_timeout": 0,
                "comment": "Диапазон измерения",
                "config_group": [
                    "Sensor",
                    "Параметры датчика"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    3
                ],
                "name": "measure_range",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "автоматически",
                    "1": "0...200 мкСм/см",
                    "2": "0...2000 мкСм/см",
                    "3": "0...200 мСм/см"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "28h",
                "byte_timeout": 0,
                "comment": "Единица электропроводности",
                "config_group": [
                    "Sensor",
                    "Параметры датчика"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "con_unit",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "мкСм/см",
                    "1": "мСм/см"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "29h",
                "byte_timeout": 0,
                "comment": "Температура приведения",
                "config_group": [
                    "Sensor",
                    "Параметры датчика"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "reference_t",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "25 °C",
                    "1": "20 °C"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "2Ah",
                "byte_timeout": 0,
                "comment": "Компенсация для чистой воды",
                "config_group": [
                    "Sensor",
                    "Параметры датчика"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "pure_water_comp",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "выключена",
                    "1": "включена"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "42h",
                "byte_timeout": 0,
                "comment": "Электропроводность эталонного раствора пользователя, мкСм/см",
                "config_group": [
                    "Calibration",
                    "Калибровка"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    65535
                ],
                "name": "calibration_value",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 6
            },
            {
                "access": "ReadOnly",
                "address": "44h",
                "byte_timeout": 0,
                "comment": "Постоянная ячейки по последней калибровке, 0,0001 1/см",
                "config_group": [
                    "Calibration",
                    "Калибровка"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    65535
                ],
                "name": "cell_constant_value",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 0
            },
            {
                "access": "ReadWrite",
                "address": "40h",
                "byte_timeout": 0,
                "comment": "Режим работы датчика",
                "config_group": [
                    "Calibration",
                    "Калибровка"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    16,
                    96
                ],
                "name": "mode",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "16": "измерение",
                    "80": "инициализация",
                    "96": "калибровка"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "41h",
                "byte_timeout": 0,
                "comment": "Код эталонного раствора текущей точки калибровки",
                "config_group": [
                    "Calibration",
                    "Калибровка"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    255
                ],
                "name": "buffer_code",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "1": "84 мкСм/см",
                    "2": "1413 мкСм/см",
                    "255": "сброс",
                    "4": "12,88 мСм/см"
                },
                "write_func": 6
            },
            {
                "access": "ReadOnly",
                "address": "43h",
                "byte_timeout": 0,
                "comment": "Результат последнего шага калибровки",
                "config_group": [
                    "Calibration",
                    "Калибровка"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    4
                ],
                "name": "calibration_status",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "успешно",
                    "1": "не завершена",
                    "2": "нет эталонного раствора",
                    "3": "сигнал нестабилен или вне диапазона",
                    "4": "наклон или смещение вне допуска"
                },
                "write_func": 0
            }
        ],
        "template": "Nengshi-CON",
        "use_cash": true
    },
    "id": "Nengshi-CON",
    "name": "Nengshi-CON",
    "producer": "Nengshi",
    "version": "20210305120000"
}
