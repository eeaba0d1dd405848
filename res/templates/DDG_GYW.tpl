{
    "comment": "Цифровой датчик электропроводности BOQU DDG-GYW (Modbus RTU)",
    "device": {
        "address": 1,
        "byteswap_enabled": false,
        "cash_timeout": 150,
        "enabled": true,
        "modbus_id": "#F3#2000#4",
        "name": "DDG-GYW",
        "polling_period": 1000,
        "priority": 10,
        "protocol": "MODBUS_RTU",
        "response_timeout": 200,
        "tags": [
            {
                "access": "ReadOnly",
                "address": "2000",
                "byte_timeout": 0,
                "comment": "Удельная электропроводность, мкСм/см",
                "config_group": [
                    "Channel",
                    "Измерения"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    20000
                ],
                "name": "ch_value",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "2002",
                "byte_timeout": 0,
                "comment": "Температура, °C",
                "config_group": [
                    "Channel",
                    "Измерения"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    100
                ],
                "name": "ch_T_value",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "2004",
                "byte_timeout": 0,
                "comment": "Солесодержание TDS, мг/л",
                "config_group": [
                    "Channel",
                    "Измерения"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    10000
                ],
                "name": "ch_tds_value",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "2006",
                "byte_timeout": 0,
                "comment": "Удельное сопротивление, МОм·см",
                "config_group": [
                    "Channel",
                    "Измерения"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    20
                ],
                "name": "ch_R_value",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 0
            },
            {
                "access": "ReadWrite",
                "address": "2100",
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
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "2101",
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
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "2102",
                "byte_timeout": 0,
                "comment": "Постоянная ячейки, 1/см",
                "config_group": [
                    "Sensor",
                    "Параметры датчика"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0.01,
                    10
                ],
                "name": "cell_constant",
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
                "address": "2104",
                "byte_timeout": 0,
                "comment": "Температурный коэффициент, %/°C",
                "config_group": [
                    "Sensor",
                    "Параметры датчика"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    10
                ],
                "name": "t_compensation_coef",
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
                "address": "2106",
                "byte_timeout": 0,
                "comment": "Режим термокомпенсации",
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
                "name": "t_compensation_mode",
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
                "address": "2108",
                "byte_timeout": 0,
                "comment": "Температура для ручной термокомпенсации, °C",
                "config_group": [
                    "Sensor",
                    "Параметры датчика"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    100
                ],
                "name": "manual_t",
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
                "address": "2110",
                "byte_timeout": 0,
                "comment": "Коэффициент пересчёта в TDS",
                "config_group": [
                    "Sensor",
                    "Параметры датчика"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0.4,
                    1
                ],
                "name": "tds_factor",
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
                "address": "2112",
                "byte_timeout": 0,
                "comment": "Температура приведения, °C",
                "config_group": [
                    "Sensor",
                    "Параметры датчика"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    15,
                    30
                ],
                "name": "t_reduction",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            }
        ],
        "template": "DDG-GYW",
        "use_cash": true
    },
    "id": "DDG-GYW",
    "name": "DDG-GYW",
    "producer": "BOQU",
    "version": "20220721120000"
}
