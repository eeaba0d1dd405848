{
    "comment": "Анализатор растворенного кислорода Quil-61",
    "device": {
        "address": 2,
        "enabled": true,
        "modbus_id": "Quil-61",
        "name": "Quil-61",
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
                "write_func": 16
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
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "int16",
                "value": 2,
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "008h",
                "byte_timeout": 0,
                "comment": "Режим индикации на экране прибора",
                "config_group": [
                    "VisualOutput",
                    "Индикация"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    5
                ],
                "name": "measure_mode",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Кислород, мг/л",
                    "1": "Кислород, % насыщения",
                    "2": "Кислород и температура",
                    "3": "Давление",
                    "4": "График",
                    "5": "Архивный график"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "009h",
                "byte_timeout": 0,
                "comment": "Звуковая сигнализация",
                "config_group": [
                    "SoundOutput",
                    "Звуковая сигнализация"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    3
                ],
                "name": "signal_by_sound",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "выключена",
                    "1": "при срабатывании реле",
                    "2": "при ошибке",
                    "3": "при срабатывании реле и при ошибке"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "00Bh",
                "byte_timeout": 0,
                "comment": "Архивный график: параметр сплошной линии",
                "config_group": [
                    "ArchPlot",
                    "Архивный график"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    4
                ],
                "name": "arch_plot_solid_line",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Кислород, мг/л",
                    "1": "Кислород, % насыщения",
                    "2": "Давление",
                    "3": "Температура",
                    "4": "не отображается"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "00Ch",
                "byte_timeout": 0,
                "comment": "Архивный график: параметр пунктирной линии",
                "config_group": [
                    "ArchPlot",
                    "Архивный график"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    4
                ],
                "name": "arch_plot_dotted_line",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Кислород, мг/л",
                    "1": "Кислород, % насыщения",
                    "2": "Давление",
                    "3": "Температура",
                    "4": "не отображается"
                },
                "write_func": 16
            },
            {
                "access": "WriteOnly",
                "address": "018h",
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
                "access": "ReadWrite",
                "address": "026h",
                "byte_timeout": 0,
                "comment": "Тип датчика кислорода",
                "config_group": [
                    "Sensor",
                    "Датчик кислорода"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "sensor_type_1",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Quil-D1 (0...20 мг/л)",
                    "1": "Quil-D2 (0...2000 мкг/л)"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "022h",
                "byte_timeout": 0,
                "comment": "Положение десятичной точки при индикации",
                "config_group": [
                    "AnalogInput",
                    "Вход"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    3
                ],
                "name": "decimal_point_1",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "0",
                    "1": "0.0",
                    "2": "0.00",
                    "3": "0.000"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "021h",
                "byte_timeout": 0,
                "comment": "Время усреднения результата, с",
                "config_group": [
                    "AnalogInput",
                    "Вход"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    1,
                    255
                ],
                "name": "average_time_1",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "02Ah",
                "byte_timeout": 0,
                "comment": "Солесодержание пробы для поправки, г/л",
                "config_group": [
                    "AnalogInput",
                    "Вход"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    50
                ],
                "name": "salinity_1",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "02Eh",
                "byte_timeout": 0,
                "comment": "Ток нуля датчика, нА",
                "config_group": [
                    "Calibration",
                    "Градуировка"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -100,
                    100
                ],
                "name": "sensor_zero_1",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "030h",
                "byte_timeout": 0,
                "comment": "Чувствительность датчика, нА/(мг/л)",
                "config_group": [
                    "Calibration",
                    "Градуировка"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0.1,
                    1000
                ],
                "name": "sensor_sensitivity_1",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "03Ah",
                "byte_timeout": 0,
                "comment": "Способ градуировки",
                "config_group": [
                    "Calibration",
                    "Градуировка"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    2
                ],
                "name": "calibr_mode_1",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "по воздуху",
                    "1": "по воде, насыщенной воздухом",
                    "2": "двухточечная"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "03Bh",
                "byte_timeout": 0,
                "comment": "Межградуировочный интервал, сут",
                "config_group": [
                    "Calibration",
                    "Градуировка"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    365
                ],
                "name": "calibr_interval_1",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "024h",
                "byte_timeout": 0,
                "comment": "Тип термосопротивления",
                "config_group": [
                    "Sensor",
                    "Термодатчик"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    4
                ],
                "name": "resistor_type_1",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Pt100",
                    "1": "Pt1000",
                    "2": "100М",
                    "3": "50М",
                    "4": "Pt500"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "025h",
                "byte_timeout": 0,
                "comment": "Время усреднения температуры, с",
                "config_group": [
                    "Sensor",
                    "Термодатчик"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    1,
                    255
                ],
                "name": "average_time_t_1",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "036h",
                "byte_timeout": 0,
                "comment": "Сопротивление термодатчика при 0 °C, Ом",
                "config_group": [
                    "Sensor",
                    "Термодатчик"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    40,
                    1200
                ],
                "name": "ts1_resistance0",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "038h",
                "byte_timeout": 0,
                "comment": "Поправка к показаниям температуры, °C",
                "config_group": [
                    "Sensor",
                    "Термодатчик"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -10,
                    10
                ],
                "name": "t1_value_for_correction",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "023h",
                "byte_timeout": 0,
                "comment": "Источник значения температуры",
                "config_group": [
                    "AnalogInput",
                    "Вход"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "temper_source",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "датчик",
                    "1": "ручной ввод"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "028h",
                "byte_timeout": 0,
                "comment": "Температура, вводимая вручную, °C",
                "config_group": [
                    "AnalogInput",
                    "Вход"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -10,
                    150
                ],
                "name": "hand_t_1",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "027h",
                "byte_timeout": 0,
                "comment": "Источник значения атмосферного давления",
                "config_group": [
                    "AnalogInput",
                    "Вход"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "press_source",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "датчик",
                    "1": "ручной ввод"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "02Ch",
                "byte_timeout": 0,
                "comment": "Атмосферное давление, вводимое вручную, кПа",
                "config_group": [
                    "AnalogInput",
                    "Вход"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    80,
                    120
                ],
                "name": "hand_press",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "032h",
                "byte_timeout": 0,
                "comment": "Поправка к показаниям датчика давления, кПа",
                "config_group": [
                    "AnalogInput",
                    "Вход"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -10,
                    10
                ],
                "name": "p_value_for_correction",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "040h",
                "byte_timeout": 0,
                "comment": "Масштаб: график, кислород",
                "config_group": [
                    "Plot",
                    "график, кислород"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "plot_1_autoscaling",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "ручное",
                    "1": "автоматическое"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "041h",
                "byte_timeout": 0,
                "comment": "Масштаб: график, % насыщения",
                "config_group": [
                    "Plot",
                    "график, % насыщения"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "plot_s1_autoscaling",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "ручное",
                    "1": "автоматическое"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "042h",
                "byte_timeout": 0,
                "comment": "Масштаб: график, давление",
                "config_group": [
                    "Plot",
                    "график, давление"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "plot_p1_autoscaling",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "ручное",
                    "1": "автоматическое"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "043h",
                "byte_timeout": 0,
                "comment": "Масштаб: график, температура",
                "config_group": [
                    "Plot",
                    "график, температура"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "plot_t1_autoscaling",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "ручное",
                    "1": "автоматическое"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "044h",
                "byte_timeout": 0,
                "comment": "Масштаб: архивный график, кислород",
                "config_group": [
                    "ArchPlot",
                    "архивный график, кислород"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "arch_plot_1_autoscaling",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "ручное",
                    "1": "автоматическое"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "045h",
                "byte_timeout": 0,
                "comment": "Масштаб: архивный график, % насыщения",
                "config_group": [
                    "ArchPlot",
                    "архивный график, % насыщения"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "arch_plot_s1_autoscaling",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "ручное",
                    "1": "автоматическое"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "046h",
                "byte_timeout": 0,
                "comment": "Масштаб: архивный график, давление",
                "config_group": [
                    "ArchPlot",
                    "архивный график, давление"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "arch_plot_p1_autoscaling",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "ручное",
                    "1": "автоматическое"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "047h",
                "byte_timeout": 0,
                "comment": "Масштаб: архивный график, температура",
                "config_group": [
                    "ArchPlot",
                    "архивный график, температура"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    1
                ],
                "name": "arch_plot_t1_autoscaling",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "ручное",
                    "1": "автоматическое"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "048h",
                "byte_timeout": 0,
                "comment": "Нижняя граница шкалы: график, кислород",
                "config_group": [
                    "Plot",
                    "график, кислород"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    50000
                ],
                "name": "plot_1_min_autoscaling",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "04Ah",
                "byte_timeout": 0,
                "comment": "Верхняя граница шкалы: график, кислород",
                "config_group": [
                    "Plot",
                    "график, кислород"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    50000
                ],
                "name": "plot_1_max_autoscaling",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "04Ch",
                "byte_timeout": 0,
                "comment": "Нижняя граница шкалы: график, % насыщения",
                "config_group": [
                    "Plot",
                    "график, % насыщения"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    500
                ],
                "name": "plot_s1_min_autoscaling",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "04Eh",
                "byte_timeout": 0,
                "comment": "Верхняя граница шкалы: график, % насыщения",
                "config_group": [
                    "Plot",
                    "график, % насыщения"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    500
                ],
                "name": "plot_s1_max_autoscaling",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "050h",
                "byte_timeout": 0,
                "comment": "Нижняя граница шкалы: график, давление",
                "config_group": [
                    "Plot",
                    "график, давление"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    80,
                    120
                ],
                "name": "plot_p1_min_autoscaling",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "052h",
                "byte_timeout": 0,
                "comment": "Верхняя граница шкалы: график, давление",
                "config_group": [
                    "Plot",
                    "график, давление"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    80,
                    120
                ],
                "name": "plot_p1_max_autoscaling",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "054h",
                "byte_timeout": 0,
                "comment": "Нижняя граница шкалы: график, температура",
                "config_group": [
                    "Plot",
                    "график, температура"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -10,
                    150
                ],
                "name": "plot_t1_min_autoscaling",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "056h",
                "byte_timeout": 0,
                "comment": "Верхняя граница шкалы: график, температура",
                "config_group": [
                    "Plot",
                    "график, температура"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -10,
                    150
                ],
                "name": "plot_t1_max_autoscaling",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "058h",
                "byte_timeout": 0,
                "comment": "Нижняя граница шкалы: архивный график, кислород",
                "config_group": [
                    "ArchPlot",
                    "архивный график, кислород"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    50000
                ],
                "name": "arch_plot_1_min_autoscaling",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "05Ah",
                "byte_timeout": 0,
                "comment": "Верхняя граница шкалы: архивный график, кислород",
                "config_group": [
                    "ArchPlot",
                    "архивный график, кислород"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    50000
                ],
                "name": "arch_plot_1_max_autoscaling",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "05Ch",
                "byte_timeout": 0,
                "comment": "Нижняя граница шкалы: архивный график, % насыщения",
                "config_group": [
                    "ArchPlot",
                    "архивный график, % насыщения"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    500
                ],
                "name": "arch_plot_s1_min_autoscaling",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "05Eh",
                "byte_timeout": 0,
                "comment": "Верхняя граница шкалы: архивный график, % насыщения",
                "config_group": [
                    "ArchPlot",
                    "архивный график, % насыщения"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    500
                ],
                "name": "arch_plot_s1_max_autoscaling",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "060h",
                "byte_timeout": 0,
                "comment": "Нижняя граница шкалы: архивный график, давление",
                "config_group": [
                    "ArchPlot",
                    "архивный график, давление"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    80,
                    120
                ],
                "name": "arch_plot_p1_min_autoscaling",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "062h",
                "byte_timeout": 0,
                "comment": "Верхняя граница шкалы: архивный график, давление",
                "config_group": [
                    "ArchPlot",
                    "архивный график, давление"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    80,
                    120
                ],
                "name": "arch_plot_p1_max_autoscaling",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "064h",
                "byte_timeout": 0,
                "comment": "Нижняя граница шкалы: архивный график, температура",
                "config_group": [
                    "ArchPlot",
                    "архивный график, температура"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -10,
                    150
                ],
                "name": "arch_plot_t1_min_autoscaling",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "066h",
                "byte_timeout": 0,
                "comment": "Верхняя граница шкалы: архивный график, температура",
                "config_group": [
                    "ArchPlot",
                    "архивный график, температура"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -10,
                    150
                ],
                "name": "arch_plot_t1_max_autoscaling",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "100h",
                "byte_timeout": 0,
                "comment": "Реле 1: функция",
                "config_group": [
                    "DigitalOut",
                    "Реле 1"
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
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "выключено",
                    "1": "включение при превышении уставки",
                    "2": "включение при понижении уставки"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "101h",
                "byte_timeout": 0,
                "comment": "Реле 1: контролируемый параметр",
                "config_group": [
                    "DigitalOut",
                    "Реле 1"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    4
                ],
                "name": "relay1_binding",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Кислород, мг/л",
                    "1": "Кислород, % насыщения",
                    "2": "Давление",
                    "3": "Температура",
                    "4": "Ошибка прибора"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "102h",
                "byte_timeout": 0,
                "comment": "Реле 1: задержка включения, с",
                "config_group": [
                    "DigitalOut",
                    "Реле 1"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    255
                ],
                "name": "relay1_on_delay",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "103h",
                "byte_timeout": 0,
                "comment": "Реле 1: задержка выключения, с",
                "config_group": [
                    "DigitalOut",
                    "Реле 1"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    255
                ],
                "name": "relay1_off_delay",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "104h",
                "byte_timeout": 0,
                "comment": "Реле 1: уставка",
                "config_group": [
                    "DigitalOut",
                    "Реле 1"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -50,
                    50000
                ],
                "name": "relay1_setpoint",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "106h",
                "byte_timeout": 0,
                "comment": "Реле 1: гистерезис",
                "config_group": [
                    "DigitalOut",
                    "Реле 1"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    50000
                ],
                "name": "relay1_hysteresis",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "108h",
                "byte_timeout": 0,
                "comment": "Реле 2: функция",
                "config_group": [
                    "DigitalOut",
                    "Реле 2"
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
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "выключено",
                    "1": "включение при превышении уставки",
                    "2": "включение при понижении уставки"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "109h",
                "byte_timeout": 0,
                "comment": "Реле 2: контролируемый параметр",
                "config_group": [
                    "DigitalOut",
                    "Реле 2"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    4
                ],
                "name": "relay2_binding",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Кислород, мг/л",
                    "1": "Кислород, % насыщения",
                    "2": "Давление",
                    "3": "Температура",
                    "4": "Ошибка прибора"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "10Ah",
                "byte_timeout": 0,
                "comment": "Реле 2: задержка включения, с",
                "config_group": [
                    "DigitalOut",
                    "Реле 2"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    255
                ],
                "name": "relay2_on_delay",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "10Bh",
                "byte_timeout": 0,
                "comment": "Реле 2: задержка выключения, с",
                "config_group": [
                    "DigitalOut",
                    "Реле 2"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    255
                ],
                "name": "relay2_off_delay",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "10Ch",
                "byte_timeout": 0,
                "comment": "Реле 2: уставка",
                "config_group": [
                    "DigitalOut",
                    "Реле 2"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -50,
                    50000
                ],
                "name": "relay2_setpoint",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "10Eh",
                "byte_timeout": 0,
                "comment": "Реле 2: гистерезис",
                "config_group": [
                    "DigitalOut",
                    "Реле 2"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    50000
                ],
                "name": "relay2_hysteresis",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "110h",
                "byte_timeout": 0,
                "comment": "Реле 3: функция",
                "config_group": [
                    "DigitalOut",
                    "Реле 3"
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
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "выключено",
                    "1": "включение при превышении уставки",
                    "2": "включение при понижении уставки"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "111h",
                "byte_timeout": 0,
                "comment": "Реле 3: контролируемый параметр",
                "config_group": [
                    "DigitalOut",
                    "Реле 3"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    4
                ],
                "name": "relay3_binding",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Кислород, мг/л",
                    "1": "Кислород, % насыщения",
                    "2": "Давление",
                    "3": "Температура",
                    "4": "Ошибка прибора"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "112h",
                "byte_timeout": 0,
                "comment": "Реле 3: задержка включения, с",
                "config_group": [
                    "DigitalOut",
                    "Реле 3"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    255
                ],
                "name": "relay3_on_delay",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "113h",
                "byte_timeout": 0,
                "comment": "Реле 3: задержка выключения, с",
                "config_group": [
                    "DigitalOut",
                    "Реле 3"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    255
                ],
                "name": "relay3_off_delay",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "114h",
                "byte_timeout": 0,
                "comment": "Реле 3: уставка",
                "config_group": [
                    "DigitalOut",
                    "Реле 3"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -50,
                    50000
                ],
                "name": "relay3_setpoint",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "116h",
                "byte_timeout": 0,
                "comment": "Реле 3: гистерезис",
                "config_group": [
                    "DigitalOut",
                    "Реле 3"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    50000
                ],
                "name": "relay3_hysteresis",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "118h",
                "byte_timeout": 0,
                "comment": "Реле 4: функция",
                "config_group": [
                    "DigitalOut",
                    "Реле 4"
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
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "выключено",
                    "1": "включение при превышении уставки",
                    "2": "включение при понижении уставки"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "119h",
                "byte_timeout": 0,
                "comment": "Реле 4: контролируемый параметр",
                "config_group": [
                    "DigitalOut",
                    "Реле 4"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    4
                ],
                "name": "relay4_binding",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Кислород, мг/л",
                    "1": "Кислород, % насыщения",
                    "2": "Давление",
                    "3": "Температура",
                    "4": "Ошибка прибора"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "11Ah",
                "byte_timeout": 0,
                "comment": "Реле 4: задержка включения, с",
                "config_group": [
                    "DigitalOut",
                    "Реле 4"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    255
                ],
                "name": "relay4_on_delay",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "11Bh",
                "byte_timeout": 0,
                "comment": "Реле 4: задержка выключения, с",
                "config_group": [
                    "DigitalOut",
                    "Реле 4"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    255
                ],
                "name": "relay4_off_delay",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "11Ch",
                "byte_timeout": 0,
                "comment": "Реле 4: уставка",
                "config_group": [
                    "DigitalOut",
                    "Реле 4"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -50,
                    50000
                ],
                "name": "relay4_setpoint",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "11Eh",
                "byte_timeout": 0,
                "comment": "Реле 4: гистерезис",
                "config_group": [
                    "DigitalOut",
                    "Реле 4"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    50000
                ],
                "name": "relay4_hysteresis",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "140h",
                "byte_timeout": 0,
                "comment": "Светодиод 1: функция",
                "config_group": [
                    "DigitalOut",
                    "Светодиод 1"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    2
                ],
                "name": "lightdiod1_function",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "выключено",
                    "1": "включение при превышении уставки",
                    "2": "включение при понижении уставки"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "141h",
                "byte_timeout": 0,
                "comment": "Светодиод 1: контролируемый параметр",
                "config_group": [
                    "DigitalOut",
                    "Светодиод 1"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    4
                ],
                "name": "lightdiod1_binding",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Кислород, мг/л",
                    "1": "Кислород, % насыщения",
                    "2": "Давление",
                    "3": "Температура",
                    "4": "Ошибка прибора"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "142h",
                "byte_timeout": 0,
                "comment": "Светодиод 1: уставка",
                "config_group": [
                    "DigitalOut",
                    "Светодиод 1"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -50,
                    50000
                ],
                "name": "lightdiod1_setpoint",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "144h",
                "byte_timeout": 0,
                "comment": "Светодиод 2: функция",
                "config_group": [
                    "DigitalOut",
                    "Светодиод 2"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    2
                ],
                "name": "lightdiod2_function",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "выключено",
                    "1": "включение при превышении уставки",
                    "2": "включение при понижении уставки"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "145h",
                "byte_timeout": 0,
                "comment": "Светодиод 2: контролируемый параметр",
                "config_group": [
                    "DigitalOut",
                    "Светодиод 2"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    4
                ],
                "name": "lightdiod2_binding",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Кислород, мг/л",
                    "1": "Кислород, % насыщения",
                    "2": "Давление",
                    "3": "Температура",
                    "4": "Ошибка прибора"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "146h",
                "byte_timeout": 0,
                "comment": "Светодиод 2: уставка",
                "config_group": [
                    "DigitalOut",
                    "Светодиод 2"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -50,
                    50000
                ],
                "name": "lightdiod2_setpoint",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "148h",
                "byte_timeout": 0,
                "comment": "Светодиод 3: функция",
                "config_group": [
                    "DigitalOut",
                    "Светодиод 3"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    2
                ],
                "name": "lightdiod3_function",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "выключено",
                    "1": "включение при превышении уставки",
                    "2": "включение при понижении уставки"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "149h",
                "byte_timeout": 0,
                "comment": "Светодиод 3: контролируемый параметр",
                "config_group": [
                    "DigitalOut",
                    "Светодиод 3"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    4
                ],
                "name": "lightdiod3_binding",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Кислород, мг/л",
                    "1": "Кислород, % насыщения",
                    "2": "Давление",
                    "3": "Температура",
                    "4": "Ошибка прибора"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "14Ah",
                "byte_timeout": 0,
                "comment": "Светодиод 3: уставка",
                "config_group": [
                    "DigitalOut",
                    "Светодиод 3"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -50,
                    50000
                ],
                "name": "lightdiod3_setpoint",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "14Ch",
                "byte_timeout": 0,
                "comment": "Светодиод 4: функция",
                "config_group": [
                    "DigitalOut",
                    "Светодиод 4"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    2
                ],
                "name": "lightdiod4_function",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "выключено",
                    "1": "включение при превышении уставки",
                    "2": "включение при понижении уставки"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "14Dh",
                "byte_timeout": 0,
                "comment": "Светодиод 4: контролируемый параметр",
                "config_group": [
                    "DigitalOut",
                    "Светодиод 4"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    4
                ],
                "name": "lightdiod4_binding",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Кислород, мг/л",
                    "1": "Кислород, % насыщения",
                    "2": "Давление",
                    "3": "Температура",
                    "4": "Ошибка прибора"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "14Eh",
                "byte_timeout": 0,
                "comment": "Светодиод 4: уставка",
                "config_group": [
                    "DigitalOut",
                    "Светодиод 4"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -50,
                    50000
                ],
                "name": "lightdiod4_setpoint",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "150h",
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
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "(0...5) мА",
                    "1": "(0...20) мА",
                    "2": "(4...20) мА"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "151h",
                "byte_timeout": 0,
                "comment": "Токовый выход 1: параметр",
                "config_group": [
                    "AnalogOut",
                    "Токовый выход 1"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    3
                ],
                "name": "current_output1_binding",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Кислород, мг/л",
                    "1": "Кислород, % насыщения",
                    "2": "Давление",
                    "3": "Температура"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "152h",
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
                    -50,
                    50000
                ],
                "name": "current_output1_min_ip",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "154h",
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
                    -50,
                    50000
                ],
                "name": "current_output1_max_ip",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "158h",
                "byte_timeout": 0,
                "comment": "Токовый выход 2: диапазон",
                "config_group": [
                    "AnalogOut",
                    "Токовый выход 2"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    2
                ],
                "name": "current_output2_diap",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "(0...5) мА",
                    "1": "(0...20) мА",
                    "2": "(4...20) мА"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "159h",
                "byte_timeout": 0,
                "comment": "Токовый выход 2: параметр",
                "config_group": [
                    "AnalogOut",
                    "Токовый выход 2"
                ],
                "device_type": "uint16",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    3
                ],
                "name": "current_output2_binding",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "uint16",
                "values": {
                    "0": "Кислород, мг/л",
                    "1": "Кислород, % насыщения",
                    "2": "Давление",
                    "3": "Температура"
                },
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "15Ah",
                "byte_timeout": 0,
                "comment": "Токовый выход 2: значение параметра в начале диапазона",
                "config_group": [
                    "AnalogOut",
                    "Токовый выход 2"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -50,
                    50000
                ],
                "name": "current_output2_min_ip",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadWrite",
                "address": "15Ch",
                "byte_timeout": 0,
                "comment": "Токовый выход 2: значение параметра в конце диапазона",
                "config_group": [
                    "AnalogOut",
                    "Токовый выход 2"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -50,
                    50000
                ],
                "name": "current_output2_max_ip",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 3,
                "request_delay": 3,
                "response_timeout": 0,
                "server_type": "float32",
                "write_func": 16
            },
            {
                "access": "ReadOnly",
                "address": "200h",
                "byte_timeout": 0,
                "comment": "Массовая концентрация кислорода, мг/л",
                "config_group": [
                    "Channel",
                    "Канал 1"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    50000
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
                "address": "202h",
                "byte_timeout": 0,
                "comment": "Температура пробы, °C",
                "config_group": [
                    "Channel",
                    "Канал 1"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    -50,
                    200
                ],
                "name": "ch1_T_value",
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
                "address": "204h",
                "byte_timeout": 0,
                "comment": "Насыщение пробы кислородом, %",
                "config_group": [
                    "Channel",
                    "Канал 1"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    500
                ],
                "name": "ch1_S_value",
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
                "address": "218h",
                "byte_timeout": 0,
                "comment": "Атмосферное давление, кПа",
                "config_group": [
                    "Channel",
                    "Канал 1"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    50,
                    150
                ],
                "name": "ch1_P_value",
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
                "address": "20Ch",
                "byte_timeout": 0,
                "comment": "Ток на токовом выходе 1, мА",
                "config_group": [
                    "Channel",
                    "Токовый выход 1"
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
                "address": "20Eh",
                "byte_timeout": 0,
                "comment": "Ток на токовом выходе 2, мА",
                "config_group": [
                    "Channel",
                    "Токовый выход 2"
                ],
                "device_type": "float32",
                "enabled": true,
                "level_group": 0,
                "limits": [
                    0,
                    24
                ],
                "name": "ch_current_output2",
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
                "address": "210h",
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
                "address": "211h",
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
            },
            {
                "access": "ReadOnly",
                "address": "212h",
                "byte_timeout": 0,
                "comment": "Состояние светодиодов (битовая маска)",
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
                "name": "lightdiods_outputs",
                "polling_period": 1000,
                "priority": 10,
                "read_func": 4,
                "request_delay": 1,
                "response_timeout": 0,
                "server_type": "uint16",
                "write_func": 0
            }
        ],
        "template": "Quil-61"
    },
    "id": "Quil-61",
    "name": "Quil-61",
    "producer": "Vexlor Works",
    "version": "20180919150000"
}
