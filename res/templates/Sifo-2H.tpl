{
    "comment": "Преобразователь температуры Sifo-2H с токовым выходом и HART",
    "device": {
        "address": 6,
        "enabled": true,
        "name": "Sifo-2H",
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
                "value": 6,
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "010h",
                "byte_timeout": 0,
                "comment": "Тип первичного преобразователя",
                "config_group": [
                    "AnalogInput",
                    "Входной сигнал"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "input_signal_type",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 50,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "термосопротивление",
                    "1": "термопара"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "011h",
                "byte_timeout": 0,
                "comment": "Тип (НСХ) первичного преобразователя",
                "config_group": [
                    "AnalogInput",
                    "Входной сигнал"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    7
                ],
                "name": "input_diap",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 50,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Pt100",
                    "1": "Pt1000",
                    "2": "50М",
                    "3": "100М",
                    "4": "ТХА (K)",
                    "5": "ТХК (L)",
                    "6": "ТПП (S)",
                    "7": "ТЖК (J)"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "012h",
                "byte_timeout": 0,
                "comment": "Схема подключения термосопротивления",
                "config_group": [
                    "AnalogInput",
                    "Входной сигнал"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    2
                ],
                "name": "wire_scheme",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 50,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "2-проводная",
                    "1": "3-проводная",
                    "2": "4-проводная"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "013h",
                "byte_timeout": 0,
                "comment": "Компенсация температуры холодного спая",
                "config_group": [
                    "AnalogInput",
                    "Входной сигнал"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "cold_junction_mode",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 50,
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
                "address": "014h",
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
                    2
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
                    "2": "0,00"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "015h",
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
                "request_delay": 50,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "016h",
                "byte_timeout": 0,
                "comment": "Ток при неисправности датчика",
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
                "address": "017h",
                "byte_timeout": 0,
                "comment": "Контроль обрыва и замыкания датчика",
                "config_group": [
                    "AnalogInput",
                    "Входной сигнал"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "sensor_check",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 50,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "выключено",
                    "1": "включено"
                },
                "write_func": 6
            },
            {
                "access": "ReadWrite",
                "address": "018h",
                "byte_timeout": 0,
                "comment": "Адрес HART для опроса",
                "config_group": [
                    "Interface",
                    "Конфигурация интерфейса"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    15
                ],
                "name": "hart_address",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 50,
                "response_timeout": 0,
                "server_type": "uint16",
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
                    "8": "AnalogOut"
                },
                "write_func": 0
            },
            {
                "access": "ReadWrite",
                "address": "020h",
                "byte_timeout": 0,
                "comment": "Температура холодного спая при ручной компенсации, °C",
                "config_group": [
                    "AnalogInput",
                    "Входной сигнал"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -40,
                    85
                ],
                "name": "cold_junction_t",
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
                "comment": "Температура, соответствующая 4 мА, °C",
                "config_group": [
                    "AnalogOut",
                    "Токовый выход"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -200,
                    1800
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
                "address": "024h",
                "byte_timeout": 0,
                "comment": "Температура, соответствующая 20 мА, °C",
                "config_group": [
                    "AnalogOut",
                    "Токовый выход"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -200,
                    1800
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
                "access": "ReadWrite",
                "address": "026h",
                "byte_timeout": 0,
                "comment": "Поправка к показаниям температуры, °C",
                "config_group": [
                    "AnalogInput",
                    "Входной сигнал"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -10,
                    10
                ],
                "name": "t_value_for_correction",
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
                "access": "ReadOnly",
                "address": "200h",
                "byte_timeout": 0,
                "comment": "Температура, °C",
                "config_group": [
                    "Channel",
                    "ИП 1"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -200,
                    1800
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
                "comment": "Сигнал датчика: сопротивление, Ом, или ТЭДС, мВ",
                "config_group": [
                    "Channel",
                    "ИП 1"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -100,
                    5000
                ],
                "name": "ch1_R_value",
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
                "comment": "Температура холодного спая, °C",
                "config_group": [
                    "Channel",
                    "ИП 1"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -40,
                    85
                ],
                "name": "ch_cold_junction_value",
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
                "request_delay": 50,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "208h",
                "byte_timeout": 0,
                "comment": "Обрыв датчика",
                "config_group": [
                    "Status",
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
                "name": "error_sensor_break",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 4,
                "request_delay": 50,
                "response_timeout": 0,
                "server_type": "uint16",
                "use_bit_extraction": true,
                "values": {
                    "0": "норма",
                    "1": "обрыв"
                },
                "write_func": 0
            },
            {
                "access": "ReadOnly",
                "address": "208h",
                "byte_timeout": 0,
                "comment": "Замыкание датчика",
                "config_group": [
                    "Status",
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
                "name": "error_sensor_short",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 4,
                "request_delay": 50,
                "response_timeout": 0,
                "server_type": "uint16",
                "use_bit_extraction": true,
                "values": {
                    "0": "норма",
                    "1": "замыкание"
                },
                "write_func": 0
            }
        ],
        "template": "Sifo-2H"
    },
    "id": "Sifo-2H",
    "name": "Sifo-2H",
    "producer": "Vexlor Works",
    "version": "20180814140000"
}
