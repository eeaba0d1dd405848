{
    "comment": "Преобразователь давления Wemb-2H с токовым выходом и HART",
    "device": {
        "address": 1,
        "enabled": true,
        "name": "Wemb-2H",
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
                "request_delay": 50,
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
                "request_delay": 50,
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
                "request_delay": 50,
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
                "request_delay": 50,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "1": "Interface",
                    "2": "AnalogInput",
                    "32": "Control",
                    "64": "Calibration",
                    "8": "AnalogOut"
                },
                "write_func": 0
            },
            {
                "access": "ReadWrite",
                "address": "010h",
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
                "request_delay": 50,
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
                "address": "011h",
                "byte_timeout": 0,
                "comment": "Число знаков после запятой",
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
                "request_delay": 50,
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
                "address": "012h",
                "byte_timeout": 0,
                "comment": "Время усреднения (демпфирование), с",
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
                "request_delay": 50,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "013h",
                "byte_timeout": 0,
                "comment": "Функция преобразования",
                "config_group": [
                    "AnalogOut",
                    "Токовый выход"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "sqrt_extraction",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 50,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "линейная",
                    "1": "с извлечением корня"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "014h",
                "byte_timeout": 0,
                "comment": "Ток при неисправности",
                "config_group": [
                    "AnalogOut",
                    "Токовый выход"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    2
                ],
                "name": "current_output1_error_level",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 50,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "не изменяется",
                    "1": "3,6 мА",
                    "2": "22 мА"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "015h",
                "byte_timeout": 0,
                "comment": "Блокировка кнопок прибора",
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
                "request_delay": 50,
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
                "address": "020h",
                "byte_timeout": 0,
                "comment": "Давление, соответствующее 4 мА",
                "config_group": [
                    "AnalogOut",
                    "Токовый выход"
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
                "request_delay": 50,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "022h",
                "byte_timeout": 0,
                "comment": "Давление, соответствующее 20 мА",
                "config_group": [
                    "AnalogOut",
                    "Токовый выход"
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
                "request_delay": 50,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "WriteOnly",
                "address": "070h",
                "byte_timeout": 0,
                "comment": "Восстановление заводских настроек (запись 1)",
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
                "name": "restore_default",
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
                "request_delay": 50,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "202h",
                "byte_timeout": 0,
                "comment": "Температура сенсора, °C",
                "config_group": [
                    "Channel",
                    "ИП 1"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -60,
                    125
                ],
                "name": "ch1_T_value",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 4,
                "request_delay": 50,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "204h",
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
                    3,
                    23
                ],
                "name": "ch_current_output1",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 4,
                "request_delay": 50,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "206h",
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
                "request_delay": 50,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 0
            }
        ],
        "template": "Wemb-2H"
    },
    "id": "Wemb-2H",
    "name": "Wemb-2H",
    "producer": "Vexlor Works",
    "version": "20180815100000"
}
