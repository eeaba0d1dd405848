{
    "comment": "Цифровой датчик мутности Chemins (Modbus RTU)",
    "device": {
        "address": 1,
        "byteswap_enabled": true,
        "cash_timeout": 150,
        "enabled": true,
        "modbus_id": "#F3#2002h",
        "name": "Chemins-Turbidity",
        "polling_period": 1000,
        "priority": 10,
        "protocol": "MODBUS_RTU",
        "response_timeout": 200,
        "tags": [
            {
                "access": "ReadOnly",
                "address": "2000h",
                "byte_timeout": 0,
                "comment": "Код модели датчика",
                "config_group": [
                    "Info",
                    "Сведения о датчике"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    65535
                ],
                "name": "model_code",
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
                "address": "2002h",
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
                "address": "2003h",
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
                "access": "ReadOnly",
                "address": "2100h",
                "byte_timeout": 0,
                "comment": "Мутность, NTU",
                "config_group": [
                    "Channel",
                    "Измерения"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    4000
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
                "address": "2102h",
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
                    50
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
                "address": "2104h",
                "byte_timeout": 0,
                "comment": "Состояние датчика",
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
                "name": "status",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 0
            },
            {
                "access": "WriteOnly",
                "address": "2200h",
                "byte_timeout": 0,
                "comment": "Калибровка нуля в чистой воде (записать 1)",
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
                "name": "zero_calibration",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 0,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 6
            },
            {
                "access": "WriteOnly",
                "address": "2201h",
                "byte_timeout": 0,
                "comment": "Калибровка наклона по эталону (записать 1)",
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
                "name": "slope_calibration",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 0,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 6
            },
            {
                "access": "ReadOnly",
                "address": "2202h",
                "byte_timeout": 0,
                "comment": "Результат калибровки",
                "config_group": [
                    "Calibration",
                    "Калибровка"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    2
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
                    "1": "выполняется",
                    "2": "ошибка"
                },
                "write_func": 0
            },
            {
                "access": "ReadWrite",
                "address": "2204h",
                "byte_timeout": 0,
                "comment": "Фактическая температура для калибровки датчика температуры, °C",
                "config_group": [
                    "Calibration",
                    "Калибровка"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    50
                ],
                "name": "t_set",
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
                "address": "2206h",
                "byte_timeout": 0,
                "comment": "Мутность эталонного раствора, NTU",
                "config_group": [
                    "Calibration",
                    "Калибровка"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    4000
                ],
                "name": "slope_standard",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            }
        ],
        "template": "Chemins-Turbidity",
        "use_cash": true
    },
    "id": "Chemins-Turbidity",
    "name": "Chemins-Turbidity",
    "producer": "Chemins",
    "version": "20231002100000"
}
