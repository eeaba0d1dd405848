#ifndef MODBUSCONTEXT_H
#define MODBUSCONTEXT_H

// Inside of a modbus_t, shared by the entry points and the two framings.
// Not for the application: it uses modbus/modbus.h only. Tests and fuzzers
// include it to put a scripted line under a context.

#include "modbus/modbus.h"
#include "modbus/modbuslink.h"

#include <memory>
#include <string>

class ModbusBackend;

struct _modbus
{
    _modbus();
    ~_modbus();

    std::unique_ptr<ModbusBackend> backend;
    std::unique_ptr<ModbusLink> link; // null while closed

    std::string device;
    int baud = 0;
    char parity = 'N';
    int dataBits = 8;
    int stopBits = 1;
    int slave = -1;
    int64_t responseTimeoutUs = 500000;
    int64_t byteTimeoutUs = 500000;
    bool debug = false;

    std::string dbgContext;
    modbus_dbg_handler_t rxHandler = nullptr;
    modbus_dbg_handler_t txHandler = nullptr;
    modbus_msg_t rxMsg;
    modbus_msg_t txMsg;

    // Clock readings (monotonic, microseconds) of the current exchange.
    int64_t exchangeStartUs = 0;
    int64_t time1Us = 0; // reply start, relative to exchangeStartUs
    int64_t time2Us = 0; // end of the exchange, relative to exchangeStartUs
    bool replyStarted = false;
    int64_t lastActivityUs = 0; // last byte sent or received, for t3.5

    // The last raw request, which modbus_receive_confirmation() answers.
    int rawSlave = -1;
    int rawFunction = -1;

    static int64_t nowUs();
    // Inter-byte limit within a frame.
    int64_t frameByteTimeoutUs() const
    {
        return byteTimeoutUs > 0 ? byteTimeoutUs : responseTimeoutUs;
    }
    void recordTx(const uint8_t *bytes, int length);
    void recordRx(const uint8_t *bytes, int length);
    void markReplyStart();
    void finishExchange();
};

// Framing of one protocol on the line.
class ModbusBackend
{
public:
    virtual ~ModbusBackend() = default;
    // Bytes of the check field kept at the end of a received frame.
    virtual int checksumLength() const = 0;
    // Frames and sends request (address, PDU); the count of bytes put on
    // the line, or -1 and errno.
    virtual int send(modbus_t *ctx, const uint8_t *request, int length) = 0;
    // Waits for the reply of slave and writes it to frame (address, PDU,
    // check field; MODBUS_MAX_ADU_LENGTH bytes of room). Frames of other
    // slaves are skipped until the response timeout runs out. The length,
    // or -1 and errno (ETIMEDOUT, EMBBADCRC, EMBBADDATA, EIO...).
    virtual int receive(modbus_t *ctx, int slave, uint8_t *frame) = 0;
};

// Puts link under ctx in place of the serial line (tests, fuzzers).
void modbus_set_link(modbus_t *ctx, ModbusLink *link);

#endif // MODBUSCONTEXT_H
