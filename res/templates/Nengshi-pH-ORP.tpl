{
    "comment": "Цифровой датчик pH/ОВП Nengshi (RS-485, Modbus RTU)",
    "device": {
        "address": 1,
        "byteswap_enabled": false,
        "cash_timeout": 150,
        "enabled": true,
        "modbus_id": "Nengshi",
        "name": "Nengshi-pH-ORP",
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
                "comment": "Значение pH (без десятичной точки)",
                "config_group": [
                    "Channel",
                    "Измерения"
                ],
                "device_type": "int16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    14000
                ],
                "name": "ch_ph_value",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 4,
                "registers_count": 10,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "int16",
                "tags_group": [
                    "ch_ph_value",
                    "ph_unit_code",
                    "ph_decimal_place",
                    "ch_mv_value",
                    "mv_unit_code",
                    "mv_decimal_place",
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
                "comment": "Код единицы pH",
                "config_group": [
                    "Sensor",
                    "Параметры датчика"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    12
                ],
                "name": "ph_unit_code",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 4,
                "registers_count": 10,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "tags_group": [
                    "ch_ph_value",
                    "ph_unit_code",
                    "ph_decimal_place",
                    "ch_mv_value",
                    "mv_unit_code",
                    "mv_decimal_place",
                    "ch_t_value",
                    "t_unit_code",
                    "t_decimal_place",
                    "sensor_status"
                ],
                "type": "separate",
                "values": {
                    "10": "pH"
                },
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "00h",
                "address_offset": 2,
                "byte_timeout": 0,
                "comment": "Число знаков после точки для pH",
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
                "name": "ph_decimal_place",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 4,
                "registers_count": 10,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "tags_group": [
                    "ch_ph_value",
                    "ph_unit_code",
                    "ph_decimal_place",
                    "ch_mv_value",
                    "mv_unit_code",
                    "mv_decimal_place",
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
                "comment": "Потенциал электрода, мВ (без десятичной точки)",
                "config_group": [
                    "Channel",
                    "Измерения"
                ],
                "device_type": "int16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -20000,
                    20000
                ],
                "name": "ch_mv_value",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 4,
                "registers_count": 10,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "int16",
                "tags_group": [
                    "ch_ph_value",
                    "ph_unit_code",
                    "ph_decimal_place",
                    "ch_mv_value",
                    "mv_unit_code",
                    "mv_decimal_place",
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
                "comment": "Код единицы потенциала",
                "config_group": [
                    "Sensor",
                    "Параметры датчика"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    12
                ],
                "name": "mv_unit_code",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 4,
                "registers_count": 10,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "tags_group": [
                    "ch_ph_value",
                    "ph_unit_code",
                    "ph_decimal_place",
                    "ch_mv_value",
                    "mv_unit_code",
                    "mv_decimal_place",
                    "ch_t_value",
                    "t_unit_code",
                    "t_decimal_place",
                    "sensor_status"
                ],
                "type": "separate",
                "values": {
                    "0": "mV"
                },
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "00h",
                "address_offset": 5,
                "byte_timeout": 0,
                "comment": "Число знаков после точки для потенциала",
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
                "name": "mv_decimal_place",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 4,
                "registers_count": 10,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "tags_group": [
                    "ch_ph_value",
                    "ph_unit_code",
                    "ph_decimal_place",
                    "ch_mv_value",
                    "mv_unit_code",
                    "mv_decimal_place",
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
                    "ch_ph_value",
                    "ph_unit_code",
                    "ph_decimal_place",
                    "ch_mv_value",
                    "mv_unit_code",
                    "mv_decimal_place",
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
                    "ch_ph_value",
                    "ph_unit_code",
                    "ph_decimal_place",
                    "ch_mv_value",
                    "mv_unit_code",
                    "mv_decimal_place",
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
                    "ch_ph_value",
                    "ph_unit_code",
                    "ph_decimal_place",
                    "ch_mv_value",
                    "mv_unit_code",
                    "mv_decimal_place",
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
                    "ch_ph_value",
                    "ph_unit_code",
                    "ph_decimal_place",
                    "ch_mv_value",
                    "mv_unit_code",
                    "mv_decimal_place",
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
                "comment": "Набор буферных растворов",
                "config_group": [
                    "Calibration",
                    "Калибровка"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "buffers_type",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "NIST",
                    "1": "USA"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "25h",
                "byte_timeout": 0,
                "comment": "Смещение ОВП, мВ",
                "config_group": [
                    "Sensor",
                    "Параметры датчика"
                ],
                "device_type": "int16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -200,
                    200
                ],
                "name": "orp_offset",
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
                "address": "26h",
                "byte_timeout": 0,
                "comment": "Измеряемая величина",
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
                "name": "measure_type",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "pH",
                    "1": "ОВП"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "42h",
                "byte_timeout": 0,
                "comment": "Потенциал эталонного раствора ОВП, мВ",
                "config_group": [
                    "Calibration",
                    "Калибровка"
                ],
                "device_type": "int16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -2000,
                    2000
                ],
                "name": "orp_standard",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "int16",
                "write_func": 6
            },
            {
                "access": "ReadOnly",
                "address": "44h",
                "byte_timeout": 0,
                "comment": "Крутизна электрода по последней калибровке, 0,1 %",
                "config_group": [
                    "Calibration",
                    "Калибровка"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    800,
                    1100
                ],
                "name": "ph_slope",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "45h",
                "byte_timeout": 0,
                "comment": "Потенциал нулевой точки электрода по последней калибровке, мВ",
                "config_group": [
                    "Calibration",
                    "Калибровка"
                ],
                "device_type": "int16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -100,
                    100
                ],
                "name": "ph_zero",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "int16",
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
                "comment": "Код буферного раствора текущей точки калибровки",
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
                    "2": "4,01 / 4,00 pH",
                    "255": "сброс",
                    "4": "6,86 / 7,00 pH",
                    "8": "9,18 / 10,01 pH"
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
        "template": "Nengshi-pH-ORP",
        "use_cash": true
    },
    "id": "Nengshi-pH-ORP",
    "name": "Nengshi-pH-ORP",
    "producer": "Nengshi",
    "version": "20201006110000"
}
