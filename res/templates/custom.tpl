{
    "comment": "Шаблон для настройки",
    "device": {
        "address": 1,
        "enabled": true,
        "modbus_id": "#F3#0",
        "name": "Custom device",
        "polling_period": 1000,
        "priority": 10,
        "protocol": "MODBUS_RTU",
        "tags": [
            {
                "access": "ReadWrite",
                "address": "000h",
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
                "values": {
                    "0": "выключен",
                    "1": "выключен",
                    "2": "по четности",
                    "3": "по нечетности"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "002h",
                "byte_timeout": 0,
                "comment": "Адрес прибора",
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
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "003h",
                "byte_timeout": 0,
                "comment": "Протокол",
                "config_group": [
                    "Interface",
                    "Конфигурация интерфейса"
                ],
                "device_type": "int16",
                "enabled": false,
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
                "values": {
                    "0": "Modbus RTU",
                    "1": "Modbus ASCII"
                },
                "write_func": 0
            },
            {
                "access": "ReadWrite",
                "address": "004h",
                "byte_timeout": 0,
                "comment": "Разделитель Modbus ASCII",
                "config_group": [
                    "Interface",
                    "Конфигурация интерфейса"
                ],
                "device_type": "int16",
                "enabled": false,
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
                "write_func": 0
            },
            {
                "access": "ReadWrite",
                "address": "010h",
                "byte_timeout": 0,
                "comment": "Регистр 1",
                "config_group": [
                    "Control",
                    "Управление"
                ],
                "device_type": "uint16",
                "enabled": false,
                "level_group": 0,
                "name": "register_1",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "int16",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "011h",
                "byte_timeout": 0,
                "comment": "Регистр 2",
                "config_group": [
                    "Control",
                    "Управление"
                ],
                "device_type": "uint16",
                "enabled": false,
                "level_group": 0,
                "name": "register_2",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "int16",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "012h",
                "byte_timeout": 0,
                "comment": "Регистр 3",
                "config_group": [
                    "Control",
                    "Управление"
                ],
                "device_type": "uint16",
                "enabled": false,
                "level_group": 0,
                "name": "register_3",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "int16",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "013h",
                "byte_timeout": 0,
                "comment": "Регистр 4",
                "config_group": [
                    "Control",
                    "Управление"
                ],
                "device_type": "uint16",
                "enabled": false,
                "level_group": 0,
                "name": "register_4",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "int16",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "014h",
                "byte_timeout": 0,
                "comment": "Регистр 5",
                "config_group": [
                    "Control",
                    "Управление"
                ],
                "device_type": "uint16",
                "enabled": false,
                "level_group": 0,
                "name": "register_5",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "int16",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "015h",
                "byte_timeout": 0,
                "comment": "Регистр 6",
                "config_group": [
                    "Control",
                    "Управление"
                ],
                "device_type": "uint16",
                "enabled": false,
                "level_group": 0,
                "name": "register_6",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "int16",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "016h",
                "byte_timeout": 0,
                "comment": "Регистр 7",
                "config_group": [
                    "Control",
                    "Управление"
                ],
                "device_type": "uint16",
                "enabled": false,
                "level_group": 0,
                "name": "register_7",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "int16",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "017h",
                "byte_timeout": 0,
                "comment": "Регистр 8",
                "config_group": [
                    "Control",
                    "Управление"
                ],
                "device_type": "uint16",
                "enabled": false,
                "level_group": 0,
                "name": "register_8",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "int16",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "018h",
                "byte_timeout": 0,
                "comment": "Регистр 9",
                "config_group": [
                    "Control",
                    "Управление"
                ],
                "device_type": "uint16",
                "enabled": false,
                "level_group": 0,
                "name": "register_9",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "int16",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "019h",
                "byte_timeout": 0,
                "comment": "Регистр 10",
                "config_group": [
                    "Control",
                    "Управление"
                ],
                "device_type": "uint16",
                "enabled": false,
                "level_group": 0,
                "name": "register_10",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "int16",
                "write_func": 16
            },
            {
                "access": "ReadOnly",
                "address": "FFFh",
                "byte_timeout": 0,
                "comment": "Измеряемый параметр 1",
                "config_group": [
                    "Channel",
                    "ИП 1"
                ],
                "device_type": "float32",
                "enabled": false,
                "level_group": 0,
                "name": "ch_param_1",
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
                "address": "FFFh",
                "byte_timeout": 0,
                "comment": "Измеряемый параметр 2",
                "config_group": [
                    "Channel",
                    "ИП 2"
                ],
                "device_type": "float32",
                "enabled": false,
                "level_group": 0,
                "name": "ch_param_2",
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
                "address": "FFFh",
                "byte_timeout": 0,
                "comment": "Измеряемый параметр 3",
                "config_group": [
                    "Channel",
                    "ИП 3"
                ],
                "device_type": "float32",
                "enabled": false,
                "level_group": 0,
                "name": "ch_param_3",
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
                "address": "FFFh",
                "byte_timeout": 0,
                "comment": "Измеряемый параметр 4",
                "config_group": [
                    "Channel",
                    "ИП 4"
                ],
                "device_type": "float32",
                "enabled": false,
                "level_group": 0,
                "name": "ch_param_4",
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
                "address": "FFFh",
                "byte_timeout": 0,
                "comment": "Измеряемый параметр 5",
                "config_group": [
                    "Channel",
                    "ИП 5"
                ],
                "device_type": "float32",
                "enabled": false,
                "level_group": 0,
                "name": "ch_param_5",
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
                "address": "FFFh",
                "byte_timeout": 0,
                "comment": "Измеряемый параметр 6",
                "config_group": [
                    "Channel",
                    "ИП 6"
                ],
                "device_type": "float32",
                "enabled": false,
                "level_group": 0,
                "name": "ch_param_6",
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
                "address": "FFFh",
                "byte_timeout": 0,
                "comment": "Измеряемый параметр 7",
                "config_group": [
                    "Channel",
                    "ИП 7"
                ],
                "device_type": "float32",
                "enabled": false,
                "level_group": 0,
                "name": "ch_param_7",
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
                "address": "FFFh",
                "byte_timeout": 0,
                "comment": "Измеряемый параметр 8",
                "config_group": [
                    "Channel",
                    "ИП 8"
                ],
                "device_type": "float32",
                "enabled": false,
                "level_group": 0,
                "name": "ch_param_8",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 0
            }
        ],
        "template": "Custom"
    },
    "id": "Custom",
    "name": "Custom",
    "producer": "",
    "version": "20210817120000"
}
