{
    "comment": "Цифровой датчик мутности Chunye (Modbus RTU)",
    "device": {
        "address": 1,
        "byteswap_enabled": true,
        "cash_timeout": 150,
        "enabled": true,
        "modbus_id": "#F3#100#8",
        "name": "Chunye-Turb",
        "polling_period": 1000,
        "priority": 10,
        "protocol": "MODBUS_RTU",
        "response_timeout": 200,
        "tags": [
            {
                "access": "ReadOnly",
                "address": "0x0000",
                "byte_timeout": 0,
                "comment": "Мутность",
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
                "comment": "Взвешенные вещества, мг/л",
                "config_group": [
                    "Channel",
                    "Измерения"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    50000
                ],
                "name": "ch_ss_value",
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
                "access": "ReadOnly",
                "address": "0x0008",
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
                "address": "0x0009",
                "byte_timeout": 0,
                "comment": "Код ошибки",
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
                "name": "error",
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
                "address": "0x000A",
                "byte_timeout": 0,
                "comment": "Ток выхода 4-20 мА, мА",
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
                "name": "ch_current_output",
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
                "address": "0x0065",
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
                "address": "0x0066",
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
                "access": "ReadWrite",
                "address": "0x0067",
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
                    "0": "0...100 NTU",
                    "1": "0...1000 NTU",
                    "2": "0...4000 NTU"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "0x0068",
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
                "address": "0x0069",
                "byte_timeout": 0,
                "comment": "Единица мутности",
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
                "name": "turb_unit",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "NTU",
                    "1": "FNU",
                    "2": "мг/л"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "0x006A",
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
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "0x006B",
                "byte_timeout": 0,
                "comment": "Подавление пузырьков",
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
                "name": "bubble_filter",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "выключено",
                    "1": "включено"
                },
                "write_func": 6
            },
            {
                "access": "WriteOnly",
                "address": "0x006E",
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
                "address": "0x006F",
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
                "address": "0x0070",
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
            },
            {
                "access": "ReadOnly",
                "address": "0x0072",
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
                "address": "0x0073",
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
                "access": "ReadOnly",
                "address": "0x0074",
                "byte_timeout": 0,
                "comment": "Смещение нуля по калибровке",
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
                "address": "0x0076",
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
                "address": "0x0078",
                "byte_timeout": 0,
                "comment": "Коэффициент пересчёта мутности во взвешенные вещества",
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
                "name": "ss_coefficient",
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
                "address": "0x007C",
                "byte_timeout": 0,
                "comment": "Пользовательское смещение, NTU",
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
                "name": "user_offset",
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
                "address": "0x007E",
                "byte_timeout": 0,
                "comment": "Пользовательский коэффициент усиления",
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
                "name": "user_gain",
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
                "address": "0x0082",
                "byte_timeout": 0,
                "comment": "Значение параметра при 4 мА",
                "config_group": [
                    "AnalogOut",
                    "Токовые выходы"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    4000
                ],
                "name": "current_output_min",
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
                "address": "0x0084",
                "byte_timeout": 0,
                "comment": "Значение параметра при 20 мА",
                "config_group": [
                    "AnalogOut",
                    "Токовые выходы"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    4000
                ],
                "name": "current_output_max",
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
                "address": "0x0086",
                "byte_timeout": 0,
                "comment": "Параметр токового выхода",
                "config_group": [
                    "AnalogOut",
                    "Токовые выходы"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    2
                ],
                "name": "current_output_param",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "мутность",
                    "1": "взвешенные вещества",
                    "2": "температура"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "0x0088",
                "byte_timeout": 0,
                "comment": "Верхний порог сигнализации",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    4000
                ],
                "name": "alarm_high",
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
                "address": "0x008A",
                "byte_timeout": 0,
                "comment": "Нижний порог сигнализации",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    4000
                ],
                "name": "alarm_low",
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
                "address": "0x008C",
                "byte_timeout": 0,
                "comment": "Сигнализация",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "alarm_enable",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "выключена",
                    "1": "включена"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "0x008D",
                "byte_timeout": 0,
                "comment": "Число знаков после точки",
                "config_group": [
                    "Sensor",
                    "Параметры датчика"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    3
                ],
                "name": "decimal_point",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 6
            },
            {
                "access": "WriteOnly",
                "address": "0x008E",
                "byte_timeout": 0,
                "comment": "Запуск очистки щёткой (записать 1)",
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
                "write_func": 6
            },
            {
                "access": "ReadOnly",
                "address": "0x008F",
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
                "name": "firmware_version",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 0
            }
        ],
        "template": "Chunye-Turb",
        "use_cash": true
    },
    "id": "Chunye-Turb",
    "name": "Chunye-Turb",
    "producer": "Chunye",
    "version": "20220721120000"
}
