#!/usr/bin/python3
"""Modbus ASCII slave from pymodbus 3.0, an independent peer for the tests.

    asciipeer.py DEVICE [SLAVE]

Same map as the RTU peer: holding register i = 0x1000 + i, input register
i = 0x2000 + i, coil i = i % 2, discrete input i = (i % 3 == 0), 1024 each.
Function 17 answers 0x2A "ASCIIPEER 01" and the run indicator.
"""
import logging
import sys

from pymodbus.datastore import (
    ModbusSequentialDataBlock,
    ModbusServerContext,
    ModbusSlaveContext,
)
from pymodbus.server import StartSerialServer
from pymodbus.transaction import ModbusAsciiFramer

SIZE = 1024


def main():
    device = sys.argv[1]
    slave = int(sys.argv[2]) if len(sys.argv) > 2 else 1
    # pymodbus logs every exception reply it sends; the tests provoke those.
    logging.basicConfig(level=logging.CRITICAL)
    logging.getLogger("pymodbus").setLevel(logging.CRITICAL)
    store = ModbusSlaveContext(
        di=ModbusSequentialDataBlock(0, [i % 3 == 0 for i in range(SIZE)]),
        co=ModbusSequentialDataBlock(0, [i % 2 for i in range(SIZE)]),
        hr=ModbusSequentialDataBlock(0, [0x1000 + i for i in range(SIZE)]),
        ir=ModbusSequentialDataBlock(0, [0x2000 + i for i in range(SIZE)]),
        zero_mode=True,
    )
    store.reportSlaveIdData = b"\x2aASCIIPEER 01"
    context = ModbusServerContext(slaves={slave: store}, single=False)
    StartSerialServer(
        context=context,
        framer=ModbusAsciiFramer,
        port=device,
        baudrate=9600,
        # pyserial's second tcsetattr() on a pty fails for 7E1 (glibc
        # refuses framing a pty cannot have), so the peer keeps 8N1.
        bytesize=8,
        parity="N",
        stopbits=1,
        ignore_missing_slaves=True,
    )


if __name__ == "__main__":
    main()
