{
    "comment": "Монитор давления Dorv-4 (версия 2)",
    "device": {
        "address": 1,
        "enabled": true,
        "firmware_date": "07.11.2022",
        "modbus_id": "Dorv-4",
        "name": "Dorv-4v2",
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
                "request_delay": 1,
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
                "request_delay": 1,
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
                "comment": "Сетевой адрес прибора",
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
                "value": 1,
                "write_func": 6
            },
            {
                "access": "ReadOnly",
                "address": "005h",
                "byte_timeout": 0,
                "comment": "Маска доступа к записи по интерфейсу (переключатель на плате прибора)",
                "config_group": [
                    "Control",
                    "Управление"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    65535
                ],
                "name": "access",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "1": "Interface",
                    "16": "VisualOutput",
                    "2": "AnalogInput",
                    "32": "Control",
                    "4": "DigitalOut",
                    "64": "Calibration",
                    "8": "AnalogOut"
                },
                "write_func": 0
            },
            {
                "access": "ReadWrite",
                "address": "012h",
                "byte_timeout": 0,
                "comment": "Число знаков после запятой при индикации",
                "config_group": [
                    "AnalogInput",
                    "Индикация"
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
                "values": {
                    "0": "0",
                    "1": "0,0",
                    "2": "0,00",
                    "3": "0,000"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "013h",
                "byte_timeout": 0,
                "comment": "Время усреднения результата, с",
                "config_group": [
                    "AnalogInput",
                    "Входной сигнал"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    1,
                    60
                ],
                "name": "average_time",
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
                "address": "018h",
                "byte_timeout": 0,
                "comment": "Блокировка клавиатуры",
                "config_group": [
                    "Control",
                    "Управление"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "keyboard_lock",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "разблокирована",
                    "1": "заблокирована"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "019h",
                "byte_timeout": 0,
                "comment": "Яркость индикатора",
                "config_group": [
                    "VisualOutput",
                    "Индикация"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    4
                ],
                "name": "display_brightness",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "минимальная",
                    "1": "низкая",
                    "2": "средняя",
                    "3": "высокая",
                    "4": "максимальная"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "01Ah",
                "byte_timeout": 0,
                "comment": "Единица измерения давления",
                "config_group": [
                    "AnalogInput",
                    "Входной сигнал"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    6
                ],
                "name": "input_units",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Па",
                    "1": "кПа",
                    "2": "МПа",
                    "3": "кгс/см²",
                    "4": "бар",
                    "5": "мм рт. ст.",
                    "6": "мм вод. ст."
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "024h",
                "byte_timeout": 0,
                "comment": "Нижний предел шкалы индикации",
                "config_group": [
                    "AnalogInput",
                    "Индикация"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "indication_min",
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
                "address": "026h",
                "byte_timeout": 0,
                "comment": "Верхний предел шкалы индикации",
                "config_group": [
                    "AnalogInput",
                    "Индикация"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "indication_max",
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
                "address": "02Ch",
                "byte_timeout": 0,
                "comment": "Нижний предел измерений датчика давления",
                "config_group": [
                    "AnalogInput",
                    "Входной сигнал"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "sensor_min",
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
                "address": "02Eh",
                "byte_timeout": 0,
                "comment": "Верхний предел измерений датчика давления",
                "config_group": [
                    "AnalogInput",
                    "Входной сигнал"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "sensor_max",
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
                "address": "040h",
                "byte_timeout": 0,
                "comment": "Реле 1: функция",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    2
                ],
                "name": "relay1_function",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "выключено",
                    "1": "включение выше уставки",
                    "2": "включение ниже уставки"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "044h",
                "byte_timeout": 0,
                "comment": "Реле 1: уставка",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "relay1_setpoint",
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
                "address": "046h",
                "byte_timeout": 0,
                "comment": "Реле 1: гистерезис",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    9999
                ],
                "name": "relay1_hysteresis",
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
                "address": "048h",
                "byte_timeout": 0,
                "comment": "Реле 2: функция",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    2
                ],
                "name": "relay2_function",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "выключено",
                    "1": "включение выше уставки",
                    "2": "включение ниже уставки"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "04Ch",
                "byte_timeout": 0,
                "comment": "Реле 2: уставка",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "relay2_setpoint",
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
                "address": "04Eh",
                "byte_timeout": 0,
                "comment": "Реле 2: гистерезис",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    9999
                ],
                "name": "relay2_hysteresis",
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
                "address": "050h",
                "byte_timeout": 0,
                "comment": "Реле 3: функция",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    2
                ],
                "name": "relay3_function",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "выключено",
                    "1": "включение выше уставки",
                    "2": "включение ниже уставки"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "054h",
                "byte_timeout": 0,
                "comment": "Реле 3: уставка",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "relay3_setpoint",
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
                "address": "056h",
                "byte_timeout": 0,
                "comment": "Реле 3: гистерезис",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    9999
                ],
                "name": "relay3_hysteresis",
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
                "address": "058h",
                "byte_timeout": 0,
                "comment": "Реле 4: функция",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    2
                ],
                "name": "relay4_function",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "выключено",
                    "1": "включение выше уставки",
                    "2": "включение ниже уставки"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "05Ch",
                "byte_timeout": 0,
                "comment": "Реле 4: уставка",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "relay4_setpoint",
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
                "address": "05Eh",
                "byte_timeout": 0,
                "comment": "Реле 4: гистерезис",
                "config_group": [
                    "DigitalOut",
                    "Дискретные выходы"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    9999
                ],
                "name": "relay4_hysteresis",
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
                "address": "060h",
                "byte_timeout": 0,
                "comment": "Токовый выход 1: диапазон",
                "config_group": [
                    "AnalogOut",
                    "Токовый выход 1"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    2
                ],
                "name": "current_output1_diap",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "(0...5) мА",
                    "1": "(0...20) мА",
                    "2": "(4...20) мА"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "062h",
                "byte_timeout": 0,
                "comment": "Токовый выход 1: значение параметра в начале диапазона",
                "config_group": [
                    "AnalogOut",
                    "Токовый выход 1"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "current_output1_min_ip",
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
                "address": "064h",
                "byte_timeout": 0,
                "comment": "Токовый выход 1: значение параметра в конце диапазона",
                "config_group": [
                    "AnalogOut",
                    "Токовый выход 1"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "current_output1_max_ip",
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
                "address": "071h",
                "byte_timeout": 0,
                "comment": "Корректировка нуля по текущему давлению (запись 1)",
                "config_group": [
                    "Calibration",
                    "Градуировка"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "zero_correct",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 0,
                "request_delay": 70,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 6
            },
            {
                "access": "WriteOnly",
                "address": "072h",
                "byte_timeout": 0,
                "comment": "Корректировка коэффициента передачи по эталонному давлению",
                "config_group": [
                    "Calibration",
                    "Градуировка"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "gain_correct",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 0,
                "request_delay": 70,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadOnly",
                "address": "200h",
                "byte_timeout": 0,
                "comment": "Давление",
                "config_group": [
                    "Channel",
                    "ИП 1"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -9999,
                    9999
                ],
                "name": "ch1_value",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 4,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "206h",
                "byte_timeout": 0,
                "comment": "Ток на токовом выходе, мА",
                "config_group": [
                    "Channel",
                    "Токовый выход"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    24
                ],
                "name": "ch_current_output1",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 4,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "208h",
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
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "209h",
                "byte_timeout": 0,
                "comment": "Состояние реле (битовая маска)",
                "config_group": [
                    "Channel",
                    "Состояние"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    15
                ],
                "name": "rele_outputs",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 4,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 0
            }
        ],
        "template": "Dorv-4v2"
    },
    "id": "Dorv-4",
    "name": "Dorv-4v2",
    "producer": "Vexlor Works",
    "version": "20230125100000"
}
