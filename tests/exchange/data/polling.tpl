{
  "id": "PollTest",
  "name": "PollTest",
  "producer": "regdesk tests",
  "comment": "Channels for the polling tests",
  "version": "20250101120000",
  "device": {
    "address": 1,
    "enabled": true,
    "name": "PollTest",
    "polling_period": 1000,
    "priority": 10,
    "protocol": "MODBUS_RTU",
    "template": "PollTest",
    "modbus_id": "PollTest",
    "tags": [
      {
        "name": "ch1_value",
        "address": "100h",
        "device_type": "float32",
        "read_func": 3,
        "write_func": 16,
        "access": "ReadOnly",
        "enabled": true,
        "config_group": [
          "channel",
          "Channel 1"
        ],
        "value": 1.5,
        "request_delay": 0
      },
      {
        "name": "ch2_value",
        "address": "102h",
        "device_type": "float32",
        "read_func": 3,
        "write_func": 16,
        "access": "ReadOnly",
        "enabled": true,
        "config_group": [
          "channel",
          "Channel 2"
        ],
        "value": 2.5,
        "request_delay": 0
      },
      {
        "name": "ch3_value",
        "address": "104h",
        "device_type": "float32",
        "read_func": 3,
        "write_func": 16,
        "access": "ReadOnly",
        "enabled": true,
        "config_group": [
          "channel",
          "Channel 3"
        ],
        "value": 3.5,
        "request_delay": 0
      },
      {
        "name": "ch4_value",
        "address": "106h",
        "device_type": "float32",
        "read_func": 3,
        "write_func": 16,
        "access": "ReadOnly",
        "enabled": true,
        "config_group": [
          "channel",
          "Channel 4"
        ],
        "value": 4.5,
        "request_delay": 0
      },
      {
        "name": "ch5_value",
        "address": "108h",
        "device_type": "float32",
        "read_func": 3,
        "write_func": 16,
        "access": "ReadOnly",
        "enabled": true,
        "config_group": [
          "channel",
          "Channel 5"
        ],
        "value": 5.5,
        "request_delay": 0
      },
      {
        "name": "ch6_value",
        "address": "10Ah",
        "device_type": "float32",
        "read_func": 3,
        "write_func": 16,
        "access": "ReadOnly",
        "enabled": true,
        "config_group": [
          "channel",
          "Channel 6"
        ],
        "value": 6.5,
        "request_delay": 0
      },
      {
        "name": "ch7_value",
        "address": "10Ch",
        "device_type": "float32",
        "read_func": 3,
        "write_func": 16,
        "access": "ReadOnly",
        "enabled": true,
        "config_group": [
          "channel",
          "Channel 7"
        ],
        "value": 7.5,
        "request_delay": 0
      },
      {
        "name": "ch8_value",
        "address": "10Eh",
        "device_type": "float32",
        "read_func": 3,
        "write_func": 16,
        "access": "ReadOnly",
        "enabled": true,
        "config_group": [
          "channel",
          "Channel 8"
        ],
        "value": 8.5,
        "request_delay": 0
      },
      {
        "name": "setpoint",
        "address": "200h",
        "device_type": "uint16",
        "read_func": 3,
        "write_func": 16,
        "access": "ReadWrite",
        "enabled": true,
        "config_group": [
          "settings",
          "Settings"
        ],
        "value": 7,
        "request_delay": 0
      },
      {
        "name": "command",
        "address": "201h",
        "device_type": "uint16",
        "read_func": 3,
        "write_func": 16,
        "access": "WriteOnly",
        "enabled": true,
        "config_group": [
          "settings",
          "Settings"
        ],
        "value": 0,
        "request_delay": 0
      }
    ]
  }
}
