{
    "comment": "Ионоселективный датчик кальция Chunye (Modbus RTU)",
    "device": {
        "address": 1,
        "byteswap_enabled": true,
        "cash_timeout": 150,
        "enabled": true,
        "modbus_id": "#F3#109#2",
        "name": "Chunye-CalciumIon",
        "polling_period": 1000,
        "priority": 10,
        "protocol": "MODBUS_RTU",
        "response_timeout": 200,
        "tags": [
            {
                "access": "ReadOnly",
                "address": "0x0000",
                "byte_timeout": 0,
                "comment": "Концентрация ионов кальция, мг/л",
                "config_group": [
                    "Channel",
                    "Измерения"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    40000
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
                "comment": "Потенциал электрода, мВ",
                "config_group": [
                    "Channel",
                    "Измерения"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -1000,
                    1000
                ],
                "name": "ch_mv_value",
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
                "access": "ReadOnly",
                "address": "0x0008",
                "byte_timeout": 0,
                "comment": "Показатель активности ионов кальция pCa",
                "config_group": [
                    "Channel",
                    "Измерения"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    14
                ],
                "name": "ch_pCa_value",
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
                "address": "0x000A",
                "byte_timeout": 0,
                "comment": "Единица концентрации",
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
                "name": "concentration_unit",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "мг/л",
                    "1": "ммоль/л",
                    "2": "ppm"
                },
                "write_func": 6
            },
            {
                "access": "ReadOnly",
                "address": "0x000C",
                "byte_timeout": 0,
                "comment": "Кальциевая жёсткость, мг-экв/л",
                "config_group": [
                    "Channel",
                    "Измерения"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    2000
                ],
                "name": "ch_hardness_value",
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
                "address": "0x0064",
                "byte_timeout": 0,
                "comment": "Концентрация раствора 1-й точки калибровки, мг/л",
                "config_group": [
                    "Calibration",
                    "Калибровка"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    40000
                ],
                "name": "cal_solution1",
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
                "address": "0x0066",
                "byte_timeout": 0,
                "comment": "Концентрация раствора 2-й точки калибровки, мг/л",
                "config_group": [
                    "Calibration",
                    "Калибровка"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    40000
                ],
                "name": "cal_solution2",
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
                "address": "0x0068",
                "byte_timeout": 0,
                "comment": "Концентрация раствора 3-й точки калибровки, мг/л",
                "config_group": [
                    "Calibration",
                    "Калибровка"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    40000
                ],
                "name": "cal_solution3",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "WriteOnly",
                "address": "0x006A",
                "byte_timeout": 0,
                "comment": "Команда калибровки",
                "config_group": [
                    "Calibration",
                    "Калибровка"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    3
                ],
                "name": "calibration_command",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 0,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "отмена",
                    "1": "точка 1",
                    "2": "точка 2",
                    "3": "точка 3"
                },
                "write_func": 6
            },
            {
                "access": "ReadOnly",
                "address": "0x006B",
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
                "address": "0x006C",
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
                "comment": "Крутизна электродной функции, мВ/декада",
                "config_group": [
                    "Calibration",
                    "Калибровка"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    20,
                    35
                ],
                "name": "slope",
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
                "comment": "Стандартный потенциал E0, мВ",
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
                "name": "e0",
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
                "address": "0x0075",
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
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "0x0076",
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
                    60
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
                "address": "0x0078",
                "byte_timeout": 0,
                "comment": "Поправка температуры, °C",
                "config_group": [
                    "Sensor",
                    "Параметры датчика"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -5,
                    5
                ],
                "name": "t_calibration",
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
                "address": "0x007A",
                "byte_timeout": 0,
                "comment": "Коэффициент селективности к мешающим ионам",
                "config_group": [
                    "Sensor",
                    "Параметры датчика"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "interference_coefficient",
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
                "address": "0x007C",
                "byte_timeout": 0,
                "comment": "Число точек калибровки",
                "config_group": [
                    "Calibration",
                    "Калибровка"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    2,
                    3
                ],
                "name": "calibration_points",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "2": "2 точки",
                    "3": "3 точки"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "0x007E",
                "byte_timeout": 0,
                "comment": "Поправка потенциала, мВ",
                "config_group": [
                    "Calibration",
                    "Калибровка"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -100,
                    100
                ],
                "name": "mv_offset",
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
                "address": "0x0080",
                "byte_timeout": 0,
                "comment": "Изопотенциальная точка, мВ",
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
                "name": "isopotential_point",
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
                "address": "0x0082",
                "byte_timeout": 0,
                "comment": "Интервал напоминания о калибровке, сут",
                "config_group": [
                    "Calibration",
                    "Калибровка"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    365
                ],
                "name": "calibration_interval",
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
                "address": "0x0083",
                "byte_timeout": 0,
                "comment": "Срок работы электрода с последней замены, сут",
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
                "name": "electrode_days",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 0
            }
        ],
        "template": "Chunye-CalciumIon",
        "use_cash": true
    },
    "id": "Chunye-CalciumIon",
    "name": "Chunye-CalciumIon",
    "producer": "Chunye",
    "version": "20230110160000"
}
