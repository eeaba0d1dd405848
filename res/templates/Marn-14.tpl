{
    "comment": "Кондуктометр лабораторный Marn-14",
    "device": {
        "address": 3,
        "enabled": true,
        "modbus_id": "Marn14T",
        "name": "Marn14T",
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
                "request_delay": 5,
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
                "request_delay": 5,
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
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "int16",
                "value": 3,
                "write_func": 6
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
                "request_delay": 5,
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
                "write_func": 6
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
                "request_delay": 5,
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
                "request_delay": 5,
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
                "request_delay": 5,
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
                "request_delay": 5,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 0
            }
        ],
        "template": "Marn-14"
    },
    "id": "Marn-14",
    "name": "Marn14T",
    "producer": "Vexlor Works",
    "version": "20191115153000"
}
