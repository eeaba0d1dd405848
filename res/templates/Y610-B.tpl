{
    "comment": "Цифровой датчик Yosemite Y610-B со щёткой (Modbus RTU, медленный ответ)",
    "device": {
        "address": 1,
        "byteswap_enabled": true,
        "cash_timeout": 200,
        "enabled": true,
        "modbus_id": "Y610-B",
        "name": "Y610-B",
        "polling_period": 1000,
        "priority": 10,
        "protocol": "MODBUS_RTU",
        "response_timeout": 1300,
        "tags": [
            {
                "access": "ReadOnly",
                "address": "0x2600",
                "byte_timeout": 0,
                "byteorder": "3210",
                "byteorder_enabled": true,
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
                "request_delay": 30,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "0x2602",
                "byte_timeout": 0,
                "byteorder": "3210",
                "byteorder_enabled": true,
                "comment": "Основное измеренное значение",
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
                "name": "ch_value",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 30,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "0x2604",
                "byte_timeout": 0,
                "byteorder": "3210",
                "byteorder_enabled": true,
                "comment": "Дополнительное измеренное значение",
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
                "name": "ch_value_2",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 30,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "0x0900",
                "array_size": 14,
                "byte_timeout": 0,
                "comment": "Серийный номер датчика (14 символов)",
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
                "request_delay": 30,
                "response_timeout": 0,
                "write_func": 0
            },
            {
                "access": "ReadWrite",
                "address": "0x3000",
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
                "request_delay": 30,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 16
            },
            {
                "access": "WriteOnly",
                "address": "0x3100",
                "byte_timeout": 0,
                "comment": "Запуск очистки щёткой",
                "config_group": [
                    "SensorCleaning",
                    "Очистка датчика"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "brush_start",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 0,
                "request_delay": 30,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 16
            }
        ],
        "template": "Y610-B",
        "use_cash": true
    },
    "id": "Y610-B",
    "name": "Y610-B",
    "producer": "Yosemite",
    "version": "20220523110000"
}
