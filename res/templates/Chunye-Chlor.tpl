{
    "comment": "Свободный хлор: цифровой датчик Chunye (Modbus RTU)",
    "device": {
        "address": 1,
        "byteswap_enabled": true,
        "cash_timeout": 150,
        "enabled": true,
        "modbus_id": "#F3#109#2",
        "name": "Chunye-Chlor",
        "polling_period": 1000,
        "priority": 10,
        "protocol": "MODBUS_RTU",
        "response_timeout": 200,
        "tags": [
            {
                "access": "ReadOnly",
                "address": "0x0000",
                "byte_timeout": 0,
                "comment": "Свободный хлор, мг/л",
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
                "address": "0x0002",
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
                    60
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
                "address": "0x0004",
                "byte_timeout": 0,
                "comment": "Сигнал электрода, мкА",
                "config_group": [
                    "Channel",
                    "Измерения"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -1999,
                    9999
                ],
                "name": "ch_signal_value",
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
                "address": "0x0006",
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
                    7
                ],
                "name": "status",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "норма",
                    "1": "вне диапазона",
                    "2": "ошибка датчика температуры",
                    "4": "ошибка электрода"
                },
                "write_func": 0
            },
            {
                "access": "WriteOnly",
                "address": "0x0064",
                "byte_timeout": 0,
                "comment": "Калибровка нуля (записать 1)",
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
                "address": "0x0065",
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
                "access": "ReadWrite",
                "address": "0x0066",
                "byte_timeout": 0,
                "comment": "Концентрация эталонного раствора, мг/л",
                "config_group": [
                    "Calibration",
                    "Калибровка"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    20
                ],
                "name": "slope_standard",
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
                "address": "0x006A",
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
                "access": "WriteOnly",
                "address": "0x006B",
                "byte_timeout": 0,
                "comment": "Возврат к заводской калибровке (записать 1)",
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
                "name": "factory_reset",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 0,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "0x006C",
                "byte_timeout": 0,
                "comment": "Время усреднения, с",
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
                "address": "0x006D",
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
                "address": "0x006E",
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
                "address": "0x006F",
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
                "values": {
                    "0": "выключен",
                    "1": "выключен",
                    "2": "по четности",
                    "3": "по нечетности"
                },
                "write_func": 6
            },
            {
                "access": "ReadOnly",
                "address": "0x0070",
                "byte_timeout": 0,
                "comment": "Смещение нуля по калибровке, мкА",
                "config_group": [
                    "Calibration",
                    "Калибровка"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -1999,
                    9999
                ],
                "name": "zero_value",
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
                "address": "0x0072",
                "byte_timeout": 0,
                "comment": "Наклон по калибровке",
                "config_group": [
                    "Calibration",
                    "Калибровка"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -1999,
                    9999
                ],
                "name": "slope_value",
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
                "address": "0x0074",
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
                    2
                ],
                "name": "measure_range",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "0...2 мг/л",
                    "1": "0...5 мг/л",
                    "2": "0...20 мг/л"
                },
                "write_func": 6
            }
        ],
        "template": "Chunye-Chlor",
        "use_cash": true
    },
    "id": "Chunye-Chlor",
    "name": "Chunye-Chlor",
    "producer": "Chunye",
    "version": "20220728080000"
}
