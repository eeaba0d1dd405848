{
  "id": "SimTest",
  "name": "SimTest",
  "producer": "regdesk tests",
  "comment": "Every encoding the simulator mirrors",
  "version": "20250101120000",
  "device": {
    "address": 1,
    "enabled": true,
    "name": "SimTest",
    "polling_period": 1000,
    "priority": 10,
    "protocol": "MODBUS_RTU",
    "template": "SimTest",
    "modbus_id": "SimTest",
    "tags": [
      {
        "name": "u16_rw",
        "address": "010h",
        "device_type": "uint16",
        "read_func": 3,
        "write_func": 16,
        "access": "ReadWrite",
        "comment": "",
        "enabled": true,
        "config_group": [
          "Test",
          "Test"
        ],
        "value": 1234
      },
      {
        "name": "i16_rw",
        "address": "011h",
        "device_type": "int16",
        "read_func": 3,
        "write_func": 6,
        "access": "ReadWrite",
        "comment": "",
        "enabled": true,
        "config_group": [
          "Test",
          "Test"
        ],
        "value": -5
      },
      {
        "name": "f32_rw",
        "address": "012h",
        "device_type": "float32",
        "read_func": 3,
        "write_func": 16,
        "access": "ReadWrite",
        "comment": "",
        "enabled": true,
        "config_group": [
          "Test",
          "Test"
        ],
        "value": 1.0
      },
      {
        "name": "u32_ro",
        "address": "014h",
        "device_type": "uint32",
        "read_func": 3,
        "write_func": 0,
        "access": "ReadOnly",
        "comment": "",
        "enabled": true,
        "config_group": [
          "Test",
          "Test"
        ],
        "value": 305419896
      },
      {
        "name": "f64_rw",
        "address": "016h",
        "device_type": "float64",
        "read_func": 3,
        "write_func": 16,
        "access": "ReadWrite",
        "comment": "",
        "enabled": true,
        "config_group": [
          "Test",
          "Test"
        ],
        "value": 0.1
      },
      {
        "name": "f32_noswap",
        "address": "01Ah",
        "device_type": "float32",
        "read_func": 3,
        "write_func": 16,
        "access": "ReadWrite",
        "comment": "",
        "enabled": true,
        "config_group": [
          "Test",
          "Test"
        ],
        "value": 1.0,
        "byteswap_enabled": false
      },
      {
        "name": "f32_rule",
        "address": "01Ch",
        "device_type": "float32",
        "read_func": 3,
        "write_func": 16,
        "access": "ReadWrite",
        "comment": "",
        "enabled": true,
        "config_group": [
          "Test",
          "Test"
        ],
        "value": 1.0,
        "byteorder": "1032",
        "byteorder_enabled": true
      },
      {
        "name": "bits_lo",
        "address": "020h",
        "device_type": "uint16",
        "read_func": 3,
        "write_func": 16,
        "access": "ReadWrite",
        "comment": "",
        "enabled": true,
        "config_group": [
          "Test",
          "Test"
        ],
        "value": 5,
        "use_bit_extraction": true,
        "extract_bit_from": 0,
        "extract_bit_to": 3
      },
      {
        "name": "bits_hi",
        "address": "020h",
        "device_type": "uint16",
        "read_func": 3,
        "write_func": 16,
        "access": "ReadWrite",
        "comment": "",
        "enabled": true,
        "config_group": [
          "Test",
          "Test"
        ],
        "value": 9,
        "use_bit_extraction": true,
        "extract_bit_from": 8,
        "extract_bit_to": 11
      },
      {
        "name": "sep_a",
        "address": "030h",
        "device_type": "int16",
        "read_func": 3,
        "write_func": 16,
        "access": "ReadWrite",
        "comment": "",
        "enabled": true,
        "config_group": [
          "Test",
          "Test"
        ],
        "value": 7,
        "type": "separate",
        "address_offset": 0,
        "registers_count": 4,
        "tags_group": [
          "sep_a",
          "sep_b"
        ]
      },
      {
        "name": "sep_b",
        "address": "030h",
        "device_type": "float32",
        "read_func": 3,
        "write_func": 16,
        "access": "ReadWrite",
        "comment": "",
        "enabled": true,
        "config_group": [
          "Test",
          "Test"
        ],
        "value": 2.5,
        "type": "separate",
        "address_offset": 2,
        "registers_count": 4,
        "tags_group": [
          "sep_a",
          "sep_b"
        ]
      },
      {
        "name": "text",
        "address": "040h",
        "device_type": "bytearray",
        "read_func": 3,
        "write_func": 0,
        "access": "ReadOnly",
        "comment": "",
        "enabled": true,
        "config_group": [
          "Test",
          "Test"
        ],
        "value": "SIM-TEST",
        "array_size": 8
      },
      {
        "name": "cmd",
        "address": "050h",
        "device_type": "uint16",
        "read_func": 0,
        "write_func": 6,
        "access": "WriteOnly",
        "comment": "",
        "enabled": true,
        "config_group": [
          "Test",
          "Test"
        ]
      },
      {
        "name": "ch1_value",
        "address": "100h",
        "device_type": "float32",
        "read_func": 4,
        "write_func": 0,
        "access": "ReadOnly",
        "comment": "",
        "enabled": true,
        "config_group": [
          "Channel",
          "Channel 1"
        ],
        "limits": [
          0,
          14
        ]
      },
      {
        "name": "in_u16",
        "address": "104h",
        "device_type": "uint16",
        "read_func": 4,
        "write_func": 0,
        "access": "ReadOnly",
        "comment": "",
        "enabled": true,
        "config_group": [
          "Test",
          "Test"
        ],
        "value": 42
      },
      {
        "name": "coil",
        "address": "200h",
        "device_type": "bit",
        "read_func": 1,
        "write_func": 5,
        "access": "ReadWrite",
        "comment": "",
        "enabled": true,
        "config_group": [
          "Test",
          "Test"
        ],
        "value": true
      },
      {
        "name": "status",
        "address": "201h",
        "device_type": "bit",
        "read_func": 2,
        "write_func": 0,
        "access": "ReadOnly",
        "comment": "",
        "enabled": true,
        "config_group": [
          "Test",
          "Test"
        ],
        "value": true
      }
    ]
  }
}