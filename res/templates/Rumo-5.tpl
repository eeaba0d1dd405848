{
    "comment": "Блок дискретных выходов (реле) Rumo-5",
    "device": {
        "address": 1,
        "enabled": true,
        "modbus_id": "Rumo5",
        "name": "Rumo5",
        "polling_period": 1000,
        "priority": 9,
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
                "priority": 9,
                "read_func": 3,
                "request_delay": 3,
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
                "priority": 9,
                "read_func": 3,
                "request_delay": 3,
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
                "priority": 9,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "int16",
                "value": 1,
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "300h",
                "byte_timeout": 0,
                "comment": "Реле 1: включено",
                "config_group": [
                    "DigitalOut",
                    "Реле"
                ],
                "device_type": "bit",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "rele1_state",
                "polling_period": 1000,
                "priority": 9,
                "read_func": 1,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "bool",
                "values": {
                    "0": "выключено",
                    "1": "включено"
                },
                "write_func": 5
            },
            {
                "access": "ReadWrite",
                "address": "301h",
                "byte_timeout": 0,
                "comment": "Реле 2: включено",
                "config_group": [
                    "DigitalOut",
                    "Реле"
                ],
                "device_type": "bit",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "rele2_state",
                "polling_period": 1000,
                "priority": 9,
                "read_func": 1,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "bool",
                "values": {
                    "0": "выключено",
                    "1": "включено"
                },
                "write_func": 5
            },
            {
                "access": "ReadWrite",
                "address": "302h",
                "byte_timeout": 0,
                "comment": "Реле 3: включено",
                "config_group": [
                    "DigitalOut",
                    "Реле"
                ],
                "device_type": "bit",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "rele3_state",
                "polling_period": 1000,
                "priority": 9,
                "read_func": 1,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "bool",
                "values": {
                    "0": "выключено",
                    "1": "включено"
                },
                "write_func": 5
            },
            {
                "access": "ReadWrite",
                "address": "303h",
                "byte_timeout": 0,
                "comment": "Реле 4: включено",
                "config_group": [
                    "DigitalOut",
                    "Реле"
                ],
                "device_type": "bit",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "rele4_state",
                "polling_period": 1000,
                "priority": 9,
                "read_func": 1,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "bool",
                "values": {
                    "0": "выключено",
                    "1": "включено"
                },
                "write_func": 5
            },
            {
                "access": "ReadWrite",
                "address": "304h",
                "byte_timeout": 0,
                "comment": "Реле 5: включено",
                "config_group": [
                    "DigitalOut",
                    "Реле"
                ],
                "device_type": "bit",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "rele5_state",
                "polling_period": 1000,
                "priority": 9,
                "read_func": 1,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "bool",
                "values": {
                    "0": "выключено",
                    "1": "включено"
                },
                "write_func": 5
            },
            {
                "access": "ReadWrite",
                "address": "305h",
                "byte_timeout": 0,
                "comment": "Реле 6: включено",
                "config_group": [
                    "DigitalOut",
                    "Реле"
                ],
                "device_type": "bit",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "rele6_state",
                "polling_period": 1000,
                "priority": 9,
                "read_func": 1,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "bool",
                "values": {
                    "0": "выключено",
                    "1": "включено"
                },
                "write_func": 5
            },
            {
                "access": "ReadWrite",
                "address": "306h",
                "byte_timeout": 0,
                "comment": "Реле 7: включено",
                "config_group": [
                    "DigitalOut",
                    "Реле"
                ],
                "device_type": "bit",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "rele7_state",
                "polling_period": 1000,
                "priority": 9,
                "read_func": 1,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "bool",
                "values": {
                    "0": "выключено",
                    "1": "включено"
                },
                "write_func": 5
            },
            {
                "access": "ReadWrite",
                "address": "020h",
                "byte_timeout": 0,
                "comment": "Состояние реле после включения питания (битовая маска)",
                "config_group": [
                    "DigitalOut",
                    "Реле"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    127
                ],
                "name": "rele_power_state",
                "polling_period": 1000,
                "priority": 9,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "021h",
                "byte_timeout": 0,
                "comment": "Состояние реле при потере связи с ведущим прибором (битовая маска)",
                "config_group": [
                    "DigitalOut",
                    "Реле"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    127
                ],
                "name": "rele_break_state",
                "polling_period": 1000,
                "priority": 9,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "022h",
                "byte_timeout": 0,
                "comment": "Время без запросов до признания потери связи, с (0 - не контролировать)",
                "config_group": [
                    "DigitalOut",
                    "Реле"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    255
                ],
                "name": "break_timeout",
                "polling_period": 1000,
                "priority": 9,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "023h",
                "byte_timeout": 0,
                "comment": "Кнопки ручного управления реле на блоке",
                "config_group": [
                    "DigitalOut",
                    "Реле"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "rele_buttons",
                "polling_period": 1000,
                "priority": 9,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "заблокированы",
                    "1": "разрешены"
                },
                "write_func": 6
            },
            {
                "access": "ReadOnly",
                "address": "200h",
                "byte_timeout": 0,
                "comment": "Состояние реле (битовая маска)",
                "config_group": [
                    "DigitalOut",
                    "Состояние"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    127
                ],
                "name": "rele_outputs",
                "polling_period": 1000,
                "priority": 9,
                "read_func": 4,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "201h",
                "byte_timeout": 0,
                "comment": "Неисправность питания реле",
                "config_group": [
                    "DigitalOut",
                    "Состояние"
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
                "name": "power_fault",
                "polling_period": 1000,
                "priority": 9,
                "read_func": 4,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "uint16",
                "use_bit_extraction_read_only": true,
                "values": {
                    "0": "норма",
                    "1": "неисправность"
                },
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "201h",
                "byte_timeout": 0,
                "comment": "Потеря связи с ведущим прибором",
                "config_group": [
                    "DigitalOut",
                    "Состояние"
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
                "name": "link_break",
                "polling_period": 1000,
                "priority": 9,
                "read_func": 4,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "uint16",
                "use_bit_extraction_read_only": true,
                "values": {
                    "0": "связь есть",
                    "1": "связь потеряна"
                },
                "write_func": 0
            }
        ],
        "template": "Rumo-5"
    },
    "id": "Rumo-5",
    "name": "Rumo5",
    "producer": "Vexlor Works",
    "version": "20180815110000"
}
