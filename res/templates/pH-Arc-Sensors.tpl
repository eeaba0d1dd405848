{
    "comment": "Цифровой датчик pH Hamilton Arc (Modbus RTU)",
    "device": {
        "address": 1,
        "byteswap_enabled": false,
        "cash_timeout": 100,
        "enabled": true,
        "modbus_id": "EPHUM0",
        "name": "pH-Arc-Sensors",
        "polling_period": 1000,
        "priority": 10,
        "protocol": "MODBUS_RTU",
        "response_timeout": 200,
        "tags": [
            {
                "access": "ReadWrite",
                "address": "4095",
                "byte_timeout": 0,
                "comment": "Сетевой адрес датчика",
                "config_group": [
                    "Interface",
                    "Конфигурация интерфейса"
                ],
                "device_type": "uint32",
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
                "server_type": "uint32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "4101",
                "byte_timeout": 0,
                "comment": "Скорость обмена",
                "config_group": [
                    "Interface",
                    "Конфигурация интерфейса"
                ],
                "device_type": "uint32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    2,
                    7
                ],
                "name": "baudrate",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint32",
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
                "access": "ReadOnly",
                "address": "1031",
                "array_size": 16,
                "byte_timeout": 0,
                "comment": "Обозначение типа датчика (по нему датчик опознаётся)",
                "config_group": [
                    "Info",
                    "Сведения о датчике"
                ],
                "device_type": "bytearray",
                "enabled": true,
                "level_group": 0,
                "name": "sensor_type",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "1039",
                "array_size": 16,
                "byte_timeout": 0,
                "comment": "Серийный номер датчика",
                "config_group": [
                    "Info",
                    "Сведения о датчике"
                ],
                "device_type": "bytearray",
                "enabled": true,
                "level_group": 0,
                "name": "serial_number",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "1047",
                "array_size": 16,
                "byte_timeout": 0,
                "comment": "Версия встроенного ПО",
                "config_group": [
                    "Info",
                    "Сведения о датчике"
                ],
                "device_type": "bytearray",
                "enabled": true,
                "level_group": 0,
                "name": "firmware_version",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "1055",
                "array_size": 16,
                "byte_timeout": 0,
                "comment": "Версия аппаратной части",
                "config_group": [
                    "Info",
                    "Сведения о датчике"
                ],
                "device_type": "bytearray",
                "enabled": true,
                "level_group": 0,
                "name": "hardware_version",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "write_func": 0
            },
            {
                "access": "ReadWrite",
                "address": "4103",
                "array_size": 16,
                "byte_timeout": 0,
                "comment": "Обозначение точки измерения (задаётся пользователем)",
                "config_group": [
                    "Info",
                    "Сведения о датчике"
                ],
                "device_type": "bytearray",
                "enabled": true,
                "level_group": 0,
                "name": "user_tag",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "4287",
                "address_offset": 0,
                "byte_timeout": 0,
                "comment": "Уровень доступа оператора",
                "config_group": [
                    "Access",
                    "Уровень доступа"
                ],
                "device_type": "uint32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    3,
                    48
                ],
                "name": "operator_level",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "registers_count": 4,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint32",
                "tags_group": [
                    "operator_level",
                    "password"
                ],
                "type": "separate",
                "values": {
                    "12": "Administrator",
                    "3": "User",
                    "48": "Specialist"
                },
                "write_func": 16
            },
            {
                "access": "WriteOnly",
                "address": "4287",
                "address_offset": 2,
                "byte_timeout": 0,
                "comment": "Пароль уровня доступа",
                "config_group": [
                    "Access",
                    "Уровень доступа"
                ],
                "device_type": "uint32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    99999999
                ],
                "name": "password",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 0,
                "registers_count": 4,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint32",
                "tags_group": [
                    "operator_level",
                    "password"
                ],
                "type": "separate",
                "write_func": 16
            },
            {
                "access": "WriteOnly",
                "address": "4291",
                "address_offset": 0,
                "byte_timeout": 0,
                "comment": "Уровень доступа, пароль которого меняется",
                "config_group": [
                    "Access",
                    "Уровень доступа"
                ],
                "device_type": "uint32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    3,
                    48
                ],
                "name": "operator_level_for_pswd",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 0,
                "registers_count": 4,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint32",
                "tags_group": [
                    "operator_level_for_pswd",
                    "new_password"
                ],
                "type": "separate",
                "values": {
                    "12": "Administrator",
                    "3": "User",
                    "48": "Specialist"
                },
                "write_func": 16
            },
            {
                "access": "WriteOnly",
                "address": "4291",
                "address_offset": 2,
                "byte_timeout": 0,
                "comment": "Новый пароль уровня доступа",
                "config_group": [
                    "Access",
                    "Уровень доступа"
                ],
                "device_type": "uint32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    99999999
                ],
                "name": "new_password",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 0,
                "registers_count": 4,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint32",
                "tags_group": [
                    "operator_level_for_pswd",
                    "new_password"
                ],
                "type": "separate",
                "write_func": 16
            },
            {
                "access": "ReadOnly",
                "address": "2081",
                "byte_timeout": 0,
                "comment": "Маска доступных измерительных каналов (PMC, SMC)",
                "config_group": [
                    "Sensor",
                    "Параметры датчика"
                ],
                "device_type": "uint32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    4294967295
                ],
                "name": "measurement_channels",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint32",
                "write_func": 0
            },
            {
                "access": "ReadWrite",
                "address": "2089",
                "byte_timeout": 0,
                "comment": "Единица измерения: водородный показатель pH",
                "config_group": [
                    "Sensor",
                    "Параметры датчика"
                ],
                "device_type": "uint32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    4294967295
                ],
                "name": "ph_unit",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint32",
                "values": {
                    "4096": "pH"
                },
                "write_func": 16
            },
            {
                "access": "ReadOnly",
                "address": "2091",
                "byte_timeout": 0,
                "comment": "Водородный показатель ph",
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
                "name": "ch_pH_value",
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
                "address": "2093",
                "byte_timeout": 0,
                "comment": "Состояние канала: водородный показатель pH",
                "config_group": [
                    "State",
                    "Состояние датчика"
                ],
                "device_type": "uint32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    4294967295
                ],
                "name": "ph_status",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint32",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "2095",
                "byte_timeout": 0,
                "comment": "Нижняя граница диапазона: водородный показатель pH",
                "config_group": [
                    "Sensor",
                    "Параметры датчика"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -1999,
                    9999
                ],
                "name": "ph_min",
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
                "address": "2097",
                "byte_timeout": 0,
                "comment": "Верхняя граница диапазона: водородный показатель pH",
                "config_group": [
                    "Sensor",
                    "Параметры датчика"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -1999,
                    9999
                ],
                "name": "ph_max",
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
                "address": "2099",
                "byte_timeout": 0,
                "comment": "Маска доступных единиц: водородный показатель pH",
                "config_group": [
                    "Sensor",
                    "Параметры датчика"
                ],
                "device_type": "uint32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    4294967295
                ],
                "name": "ph_available_units",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint32",
                "write_func": 0
            },
            {
                "access": "ReadWrite",
                "address": "2101",
                "byte_timeout": 0,
                "comment": "Окно скользящего усреднения основного канала (записываемое)",
                "config_group": [
                    "Sensor",
                    "Параметры датчика"
                ],
                "device_type": "uint32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    1,
                    100
                ],
                "name": "moving_average_unit",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "2103",
                "byte_timeout": 0,
                "comment": "Окно скользящего усреднения основного канала, число измерений",
                "config_group": [
                    "Sensor",
                    "Параметры датчика"
                ],
                "device_type": "uint32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    1,
                    100
                ],
                "name": "moving_average_value",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "2409",
                "byte_timeout": 0,
                "comment": "Единица измерения: температура",
                "config_group": [
                    "Sensor",
                    "Параметры датчика"
                ],
                "device_type": "uint32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    4294967295
                ],
                "name": "t_unit",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint32",
                "values": {
                    "2": "K",
                    "4": "°C",
                    "8": "°F"
                },
                "write_func": 16
            },
            {
                "access": "ReadOnly",
                "address": "2411",
                "byte_timeout": 0,
                "comment": "Температура",
                "config_group": [
                    "Channel",
                    "Измерения"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -20,
                    140
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
                "address": "2413",
                "byte_timeout": 0,
                "comment": "Состояние канала: температура",
                "config_group": [
                    "State",
                    "Состояние датчика"
                ],
                "device_type": "uint32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    4294967295
                ],
                "name": "t_status",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint32",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "2415",
                "byte_timeout": 0,
                "comment": "Нижняя граница диапазона: температура",
                "config_group": [
                    "Sensor",
                    "Параметры датчика"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -1999,
                    9999
                ],
                "name": "t_min",
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
                "address": "2417",
                "byte_timeout": 0,
                "comment": "Верхняя граница диапазона: температура",
                "config_group": [
                    "Sensor",
                    "Параметры датчика"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -1999,
                    9999
                ],
                "name": "t_max",
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
                "address": "2419",
                "byte_timeout": 0,
                "comment": "Маска доступных единиц: температура",
                "config_group": [
                    "Sensor",
                    "Параметры датчика"
                ],
                "device_type": "uint32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    4294967295
                ],
                "name": "t_available_units",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint32",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "2473",
                "byte_timeout": 0,
                "comment": "Единица сопротивления стеклянного электрода",
                "config_group": [
                    "Sensor",
                    "Параметры датчика"
                ],
                "device_type": "uint32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    4294967295
                ],
                "name": "rglass_unit",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint32",
                "values": {
                    "16384": "kOhm",
                    "32768": "MOhm"
                },
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "2475",
                "byte_timeout": 0,
                "comment": "Сопротивление стеклянного электрода",
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
                "name": "ch_Rglass_value",
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
                "address": "2485",
                "byte_timeout": 0,
                "comment": "Окно усреднения сопротивлений (записываемое)",
                "config_group": [
                    "Sensor",
                    "Параметры датчика"
                ],
                "device_type": "uint32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    1,
                    100
                ],
                "name": "moving_average_r_unit",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "2487",
                "byte_timeout": 0,
                "comment": "Окно усреднения сопротивлений, число измерений",
                "config_group": [
                    "Sensor",
                    "Параметры датчика"
                ],
                "device_type": "uint32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    1,
                    100
                ],
                "name": "moving_average_r_value",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint32",
                "write_func": 16
            },
            {
                "access": "ReadOnly",
                "address": "2537",
                "byte_timeout": 0,
                "comment": "Единица сопротивления электрода сравнения",
                "config_group": [
                    "Sensor",
                    "Параметры датчика"
                ],
                "device_type": "uint32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    4294967295
                ],
                "name": "rcp_unit",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint32",
                "values": {
                    "16384": "kOhm",
                    "32768": "MOhm"
                },
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "2539",
                "byte_timeout": 0,
                "comment": "Сопротивление электрода сравнения",
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
                "name": "ch_Rcp_value",
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
                "address": "2601",
                "byte_timeout": 0,
                "comment": "Единица сопротивления вспомогательного электрода",
                "config_group": [
                    "Sensor",
                    "Параметры датчика"
                ],
                "device_type": "uint32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    4294967295
                ],
                "name": "raux_unit",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint32",
                "values": {
                    "16384": "kOhm",
                    "32768": "MOhm"
                },
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "2603",
                "byte_timeout": 0,
                "comment": "Сопротивление вспомогательного электрода",
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
                "name": "ch_Raux_value",
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
                "address": "2665",
                "byte_timeout": 0,
                "comment": "Единица потенциала электрода",
                "config_group": [
                    "Sensor",
                    "Параметры датчика"
                ],
                "device_type": "uint32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    4294967295
                ],
                "name": "e_unit",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint32",
                "values": {
                    "1048576": "uV",
                    "2097152": "mV",
                    "4194304": "V"
                },
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "2667",
                "byte_timeout": 0,
                "comment": "Потенциал pH-электрода относительно электрода сравнения",
                "config_group": [
                    "Channel",
                    "Измерения"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -2000,
                    2000
                ],
                "name": "ch_E_value",
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
                "address": "4351",
                "byte_timeout": 0,
                "comment": "Показатель качества датчика, %",
                "config_group": [
                    "State",
                    "Состояние датчика"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    100
                ],
                "name": "quality",
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
                "address": "4353",
                "byte_timeout": 0,
                "comment": "Предупреждения калибровки (маска)",
                "config_group": [
                    "State",
                    "Состояние датчика"
                ],
                "device_type": "uint32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    4294967295
                ],
                "name": "warning_calibration",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint32",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "4355",
                "byte_timeout": 0,
                "comment": "Ошибки измерения (маска)",
                "config_group": [
                    "State",
                    "Состояние датчика"
                ],
                "device_type": "uint32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    4294967295
                ],
                "name": "error_measurement",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint32",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "4357",
                "byte_timeout": 0,
                "comment": "Ошибки калибровки (маска)",
                "config_group": [
                    "State",
                    "Состояние датчика"
                ],
                "device_type": "uint32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    4294967295
                ],
                "name": "error_calibration",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint32",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "4359",
                "byte_timeout": 0,
                "comment": "Аппаратные ошибки (маска)",
                "config_group": [
                    "State",
                    "Состояние датчика"
                ],
                "device_type": "uint32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    4294967295
                ],
                "name": "error_hardware",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint32",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "4415",
                "byte_timeout": 0,
                "comment": "Маска имеющихся токовых выходов",
                "config_group": [
                    "AnalogOut",
                    "Токовые выходы"
                ],
                "device_type": "uint32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    4294967295
                ],
                "name": "available_aoi",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint32",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "4417",
                "byte_timeout": 0,
                "comment": "Маска доступных режимов токового выхода 1",
                "config_group": [
                    "AnalogOut",
                    "Токовые выходы"
                ],
                "device_type": "uint32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    4294967295
                ],
                "name": "aoi1_available_modes",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint32",
                "write_func": 0
            },
            {
                "access": "ReadWrite",
                "address": "4419",
                "byte_timeout": 0,
                "comment": "Режим токового выхода 1",
                "config_group": [
                    "AnalogOut",
                    "Токовые выходы"
                ],
                "device_type": "uint32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    512
                ],
                "name": "aoi1_mode",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint32",
                "values": {
                    "0": "4-20 mA inactive",
                    "1": "4-20 mA fixed",
                    "2": "4-20 mA linear",
                    "256": "ECS fixed",
                    "4": "4-20 mA bilinear",
                    "512": "ECS"
                },
                "write_func": 16
            },
            {
                "access": "ReadOnly",
                "address": "4421",
                "byte_timeout": 0,
                "comment": "Маска каналов, доступных токовому выходу 1",
                "config_group": [
                    "AnalogOut",
                    "Токовые выходы"
                ],
                "device_type": "uint32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    4294967295
                ],
                "name": "measure_channels_to_aoi1",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint32",
                "write_func": 0
            },
            {
                "access": "ReadWrite",
                "address": "4423",
                "byte_timeout": 0,
                "comment": "Параметр токового выхода 1",
                "config_group": [
                    "AnalogOut",
                    "Токовые выходы"
                ],
                "device_type": "uint32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    1,
                    16384
                ],
                "name": "aoi1_binding",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint32",
                "values": {
                    "1": "PMC1 - pH",
                    "128": "SMC2 - R reference",
                    "32": "PMC6 - Temperature",
                    "512": "SMC4 - E pH vs. ref",
                    "64": "SMC1 - R glass"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "4425",
                "byte_timeout": 0,
                "comment": "Значение параметра при 4 мА, выход 1",
                "config_group": [
                    "AnalogOut",
                    "Токовые выходы"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -1999,
                    9999
                ],
                "name": "aoi1_value_4ma",
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
                "address": "4427",
                "byte_timeout": 0,
                "comment": "Значение параметра при 12 мА (билинейный режим), выход 1",
                "config_group": [
                    "AnalogOut",
                    "Токовые выходы"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -1999,
                    9999
                ],
                "name": "aoi1_value_12ma",
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
                "address": "4429",
                "byte_timeout": 0,
                "comment": "Значение параметра при 20 мА, выход 1",
                "config_group": [
                    "AnalogOut",
                    "Токовые выходы"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -1999,
                    9999
                ],
                "name": "aoi1_value_20ma",
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
                "address": "4431",
                "byte_timeout": 0,
                "comment": "Постоянный ток в фиксированном режиме, мА, выход 1",
                "config_group": [
                    "AnalogOut",
                    "Токовые выходы"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    3.5,
                    22
                ],
                "name": "aoi1_constant",
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
                "address": "4433",
                "byte_timeout": 0,
                "comment": "Заданный ток выхода 1, мА",
                "config_group": [
                    "Channel",
                    "Измерения"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    22
                ],
                "name": "ch_ao1_setpoint",
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
                "address": "4435",
                "byte_timeout": 0,
                "comment": "Измеренный ток выхода 1, мА",
                "config_group": [
                    "Channel",
                    "Измерения"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    22
                ],
                "name": "ch_ao1_value",
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
                "address": "4449",
                "byte_timeout": 0,
                "comment": "Маска доступных режимов токового выхода 2",
                "config_group": [
                    "AnalogOut",
                    "Токовые выходы"
                ],
                "device_type": "uint32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    4294967295
                ],
                "name": "aoi2_available_modes",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint32",
                "write_func": 0
            },
            {
                "access": "ReadWrite",
                "address": "4451",
                "byte_timeout": 0,
                "comment": "Режим токового выхода 2",
                "config_group": [
                    "AnalogOut",
                    "Токовые выходы"
                ],
                "device_type": "uint32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    512
                ],
                "name": "aoi2_mode",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint32",
                "values": {
                    "0": "4-20 mA inactive",
                    "1": "4-20 mA fixed",
                    "2": "4-20 mA linear",
                    "256": "ECS fixed",
                    "4": "4-20 mA bilinear",
                    "512": "ECS"
                },
                "write_func": 16
            },
            {
                "access": "ReadOnly",
                "address": "4453",
                "byte_timeout": 0,
                "comment": "Маска каналов, доступных токовому выходу 2",
                "config_group": [
                    "AnalogOut",
                    "Токовые выходы"
                ],
                "device_type": "uint32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    4294967295
                ],
                "name": "measure_channels_to_aoi2",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint32",
                "write_func": 0
            },
            {
                "access": "ReadWrite",
                "address": "4455",
                "byte_timeout": 0,
                "comment": "Параметр токового выхода 2",
                "config_group": [
                    "AnalogOut",
                    "Токовые выходы"
                ],
                "device_type": "uint32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    1,
                    16384
                ],
                "name": "aoi2_binding",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint32",
                "values": {
                    "1": "PMC1 - pH",
                    "128": "SMC2 - R reference",
                    "32": "PMC6 - Temperature",
                    "512": "SMC4 - E pH vs. ref",
                    "64": "SMC1 - R glass"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "4457",
                "byte_timeout": 0,
                "comment": "Значение параметра при 4 мА, выход 2",
                "config_group": [
                    "AnalogOut",
                    "Токовые выходы"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -1999,
                    9999
                ],
                "name": "aoi2_value_4ma",
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
                "address": "4459",
                "byte_timeout": 0,
                "comment": "Значение параметра при 12 мА (билинейный режим), выход 2",
                "config_group": [
                    "AnalogOut",
                    "Токовые выходы"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -1999,
                    9999
                ],
                "name": "aoi2_value_12ma",
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
                "address": "4461",
                "byte_timeout": 0,
                "comment": "Значение параметра при 20 мА, выход 2",
                "config_group": [
                    "AnalogOut",
                    "Токовые выходы"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -1999,
                    9999
                ],
                "name": "aoi2_value_20ma",
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
                "address": "4463",
                "byte_timeout": 0,
                "comment": "Постоянный ток в фиксированном режиме, мА, выход 2",
                "config_group": [
                    "AnalogOut",
                    "Токовые выходы"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    3.5,
                    22
                ],
                "name": "aoi2_constant",
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
                "address": "4465",
                "byte_timeout": 0,
                "comment": "Заданный ток выхода 2, мА",
                "config_group": [
                    "Channel",
                    "Измерения"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    22
                ],
                "name": "ch_ao2_setpoint",
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
                "address": "4467",
                "byte_timeout": 0,
                "comment": "Измеренный ток выхода 2, мА",
                "config_group": [
                    "Channel",
                    "Измерения"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    22
                ],
                "name": "ch_ao2_value",
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
                "address": "9471",
                "byte_timeout": 0,
                "comment": "Маска доступных наборов буферных растворов",
                "config_group": [
                    "Calibration",
                    "Калибровка"
                ],
                "device_type": "uint32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    4294967295
                ],
                "name": "available_calibration_sets",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint32",
                "write_func": 0
            },
            {
                "access": "ReadWrite",
                "address": "9473",
                "byte_timeout": 0,
                "comment": "Выбранный набор буферных растворов",
                "config_group": [
                    "Calibration",
                    "Калибровка"
                ],
                "device_type": "uint32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    1,
                    32
                ],
                "name": "calibration_set",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint32",
                "values": {
                    "1": "HAMILTON",
                    "16": "METTLER-TOLEDO",
                    "2": "MERCK TITRISOL",
                    "32": "RADIOMETER",
                    "4": "DIN 19267",
                    "8": "NIST Standard"
                },
                "write_func": 16
            },
            {
                "access": "ReadOnly",
                "address": "9475",
                "array_size": 16,
                "byte_timeout": 0,
                "comment": "Производитель выбранного набора буферов",
                "config_group": [
                    "Calibration",
                    "Калибровка"
                ],
                "device_type": "bytearray",
                "enabled": true,
                "level_group": 0,
                "name": "manufacturer_set",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "9483",
                "array_size": 16,
                "byte_timeout": 0,
                "comment": "Описание набора буферов, часть 1",
                "config_group": [
                    "Calibration",
                    "Калибровка"
                ],
                "device_type": "bytearray",
                "enabled": true,
                "level_group": 0,
                "name": "calibration_set_info1",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "9491",
                "array_size": 16,
                "byte_timeout": 0,
                "comment": "Описание набора буферов, часть 2",
                "config_group": [
                    "Calibration",
                    "Калибровка"
                ],
                "device_type": "bytearray",
                "enabled": true,
                "level_group": 0,
                "name": "calibration_set_info2",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "9499",
                "byte_timeout": 0,
                "comment": "Маска буферных растворов набора",
                "config_group": [
                    "Calibration",
                    "Калибровка"
                ],
                "device_type": "uint32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    4294967295
                ],
                "name": "available_calibration_standards",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint32",
                "write_func": 0
            },
            {
                "access": "ReadWrite",
                "address": "9501",
                "byte_timeout": 0,
                "comment": "Маска буферных растворов, выбранных для калибровки",
                "config_group": [
                    "Calibration",
                    "Калибровка"
                ],
                "device_type": "uint32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    4294967295
                ],
                "name": "selected_calibration_standards",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint32",
                "write_func": 16
            }
        ],
        "template": "pH-Arc-Sensors",
        "use_cash": true
    },
    "id": "pH-Arc-Sensors",
    "name": "pH-Arc-Sensors",
    "producer": "Hamilton",
    "version": "20190304170000"
}
