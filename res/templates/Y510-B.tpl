{
    "comment": "Оптический датчик мутности Yosemite Y510-B со щёткой (Modbus RTU)",
    "device": {
        "address": 1,
        "byteswap_enabled": true,
        "cash_timeout": 200,
        "enabled": true,
        "modbus_id": "Y510-B",
        "name": "Y510-B",
        "polling_period": 1000,
        "priority": 10,
        "protocol": "MODBUS_RTU",
        "response_timeout": 200,
        "tags": [
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
                "request_delay": 1,
                "response_timeout": 0,
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "0x0700",
                "byte_timeout": 0,
                "comment": "Версия аппаратной части",
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
                "name": "hardware_version",
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
                "address": "0x0701",
                "byte_timeout": 0,
                "comment": "Версия встроенного ПО",
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
                "name": "software_version",
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
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 16
            },
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
                "request_delay": 1,
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
                    1000
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
                "address": "0x2604",
                "byte_timeout": 0,
                "comment": "Код ошибки измерения",
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
                "name": "error_code",
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
                "address": "0x2700",
                "byte_timeout": 0,
                "byteorder": "3210",
                "byteorder_enabled": true,
                "comment": "Сигнал фотоприёмника",
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
                "access": "ReadWrite",
                "address": "0x1100",
                "byte_timeout": 0,
                "byteorder": "3210",
                "byteorder_enabled": true,
                "comment": "Калибровочный коэффициент K (наклон)",
                "config_group": [
                    "Calibration",
                    "Калибровка"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0.1,
                    10
                ],
                "name": "calibration_k",
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
                "address": "0x1102",
                "byte_timeout": 0,
                "byteorder": "3210",
                "byteorder_enabled": true,
                "comment": "Калибровочный коэффициент B (смещение), NTU",
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
                "name": "calibration_b",
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
                "address": "0x1400",
                "byte_timeout": 0,
                "byteorder": "3210",
                "byteorder_enabled": true,
                "comment": "Поправка температуры, °C",
                "config_group": [
                    "Calibration",
                    "Калибровка"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -5,
                    5
                ],
                "name": "t_offset",
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
                "address": "0x2500",
                "byte_timeout": 0,
                "comment": "Запуск измерения",
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
                "name": "start_measurement",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 0,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 16
            },
            {
                "access": "WriteOnly",
                "address": "0x2E00",
                "byte_timeout": 0,
                "comment": "Останов измерения",
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
                "name": "stop_measurement",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 0,
                "request_delay": 1,
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
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "0x3200",
                "byte_timeout": 0,
                "comment": "Интервал очистки щёткой, мин",
                "config_group": [
                    "SensorCleaning",
                    "Очистка датчика"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1440
                ],
                "name": "brush_interval",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 16
            },
            {
                "access": "WriteOnly",
                "address": "0x1C00",
                "byte_timeout": 0,
                "comment": "Возврат к заводской калибровке",
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
                "name": "restore_default",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 0,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 16
            }
        ],
        "template": "Y510-B",
        "use_cash": true
    },
    "id": "Y510-B",
    "name": "Y510-B",
    "producer": "Yosemite",
    "version": "20220516110000"
}
