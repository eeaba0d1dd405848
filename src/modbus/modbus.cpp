// Entry points of the Modbus master: contexts, records, and the request and
// confirmation logic common to RTU and ASCII.

#include "modbus/modbus.h"

#include "modbus/modbusasciibackend.h"
#include "modbus/modbuscontext.h"
#include "modbus/modbusframe.h"
#include "modbus/modbusrtubackend.h"
#include "modbus/modbusseriallink.h"

#include <atomic>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <ctime>

namespace {

std::atomic<int> asciiDelimiter {10};

const modbus_msg_t emptyMsg {};

// Saves errno across code that may clobber it (user handlers, stdio).
struct ErrnoGuard
{
    int saved = errno;
    ~ErrnoGuard() { errno = saved; }
};

void debugFrame(const modbus_t *ctx, const char *direction, const uint8_t *bytes, int length)
{
    std::fprintf(stderr, "%s%s%s:", ctx->dbgContext.c_str(), ctx->dbgContext.empty() ? "" : " ",
                 direction);
    for (int i = 0; i < length; ++i)
        std::fprintf(stderr, " %02X", bytes[i]);
    std::fputc('\n', stderr);
}

void storeMsg(modbus_msg_t &msg, const uint8_t *bytes, int length)
{
    if (length < 0)
        length = 0;
    if (length > MODBUS_MSG_BUFFER_SIZE)
        length = MODBUS_MSG_BUFFER_SIZE;
    std::memcpy(msg.buf, bytes, size_t(length));
    msg.length = length;
}

void toTimeval(int64_t us, struct timeval *tv)
{
    if (us < 0)
        us = 0;
    tv->tv_sec = time_t(us / 1000000);
    tv->tv_usec = suseconds_t(us % 1000000);
}

bool validTimeval(const struct timeval *tv)
{
    return tv && tv->tv_sec >= 0 && tv->tv_usec >= 0 && tv->tv_usec <= 999999;
}

modbus_t *newContext(bool ascii, const char *device, int baud, char parity, int dataBits,
                     int stopBits)
{
    if (parity >= 'a' && parity <= 'z')
        parity = char(parity - 'a' + 'A');
    if (!device || !*device || baud <= 0 || (parity != 'N' && parity != 'E' && parity != 'O')
        || dataBits < 5 || dataBits > 8 || (stopBits != 1 && stopBits != 2)) {
        errno = EINVAL;
        return nullptr;
    }
    auto *ctx = new modbus_t;
    if (ascii)
        ctx->backend.reset(new ModbusAsciiBackend(uint8_t(asciiDelimiter.load())));
    else
        ctx->backend.reset(new ModbusRtuBackend);
    ctx->device = device;
    ctx->baud = baud;
    ctx->parity = parity;
    ctx->dataBits = dataBits;
    ctx->stopBits = stopBits;
    return ctx;
}

bool readyForExchange(modbus_t *ctx)
{
    if (!ctx) {
        errno = EINVAL;
        return false;
    }
    if (!ctx->link) {
        errno = EBADF;
        return false;
    }
    if (ctx->slave < 0) {
        errno = EINVAL;
        return false;
    }
    return true;
}

int sendRequest(modbus_t *ctx, const uint8_t *request, int length)
{
    ctx->replyStarted = false;
    ctx->time1Us = ctx->time2Us = 0;
    ctx->rawSlave = request[0];
    ctx->rawFunction = request[1];
    const int rc = ctx->backend->send(ctx, request, length);
    if (rc < 0) {
        ErrnoGuard guard;
        ctx->finishExchange();
    }
    return rc;
}

int receiveReply(modbus_t *ctx, int slave, uint8_t *rsp)
{
    const int rc = ctx->backend->receive(ctx, slave, rsp);
    ErrnoGuard guard;
    ctx->finishExchange();
    return rc;
}

// Judges a reply to a standard request the way libmodbus does: exception
// codes become errno, anything that does not answer the request is bad data.
// Returns the count of items the reply confirms.
int checkConfirmation(modbus_t *ctx, const uint8_t *req, int reqLength, const uint8_t *rsp,
                      int rspLength)
{
    const int function = req[1];
    const int end = rspLength - ctx->backend->checksumLength(); // address + PDU
    if (end >= 2 && rsp[1] == (function | 0x80)) {
        if (end != 3) {
            errno = EMBBADDATA;
            return -1;
        }
        const int code = rsp[2];
        errno = code > 0 && code < MODBUS_EXCEPTION_MAX ? MODBUS_ENOBASE + code : EMBBADEXC;
        return -1;
    }
    if (end < 2 || rsp[1] != function) {
        errno = EMBBADDATA;
        return -1;
    }
    const int expected = ModbusFrame::expectedReplyLength(req, size_t(reqLength));
    if (expected != ModbusFrame::Unknown && end != expected - 2) {
        errno = EMBBADDATA;
        return -1;
    }
    const int quantity = reqLength >= 6 ? (req[4] << 8 | req[5]) : 0;
    bool good = true;
    int count = 1;
    switch (function) {
    case MODBUS_FC_READ_COILS:
    case MODBUS_FC_READ_DISCRETE_INPUTS:
        good = rsp[2] == (quantity + 7) / 8;
        count = quantity;
        break;
    case MODBUS_FC_READ_HOLDING_REGISTERS:
    case MODBUS_FC_READ_INPUT_REGISTERS:
        good = rsp[2] == 2 * quantity;
        count = quantity;
        break;
    case MODBUS_FC_WRITE_SINGLE_COIL:
    case MODBUS_FC_WRITE_SINGLE_REGISTER:
        good = rsp[2] == req[2] && rsp[3] == req[3];
        break;
    case MODBUS_FC_WRITE_MULTIPLE_COILS:
    case MODBUS_FC_WRITE_MULTIPLE_REGISTERS:
        good = rsp[2] == req[2] && rsp[3] == req[3] && rsp[4] == req[4] && rsp[5] == req[5];
        count = quantity;
        break;
    default:
        break;
    }
    if (!good) {
        errno = EMBBADDATA;
        return -1;
    }
    return count;
}

// One standard exchange. The reply's length goes to *rspLength; the result
// is the count of items confirmed, or for a broadcast the count requested.
int exchange(modbus_t *ctx, const uint8_t *req, int reqLength, uint8_t *rsp, int broadcastCount)
{
    if (sendRequest(ctx, req, reqLength) < 0)
        return -1;
    if (req[0] == MODBUS_BROADCAST_ADDRESS) {
        // Nobody answers a broadcast.
        ctx->finishExchange();
        return broadcastCount;
    }
    const int rc = receiveReply(ctx, req[0], rsp);
    if (rc < 0)
        return -1;
    return checkConfirmation(ctx, req, reqLength, rsp, rc);
}

bool refuseBroadcastRead(modbus_t *ctx)
{
    if (ctx->slave == MODBUS_BROADCAST_ADDRESS) {
        errno = EINVAL;
        return true;
    }
    return false;
}

int readBits(modbus_t *ctx, int function, int addr, int nb, uint8_t *dest)
{
    if (!ctx) {
        errno = EINVAL;
        return -1;
    }
    if (nb > MODBUS_MAX_READ_BITS) {
        errno = EMBMDATA;
        return -1;
    }
    if (!readyForExchange(ctx))
        return -1;
    if (nb < 0 || addr < 0 || addr > 0xFFFF || !dest) {
        errno = EINVAL;
        return -1;
    }
    if (refuseBroadcastRead(ctx))
        return -1;
    const uint8_t req[6] = {uint8_t(ctx->slave), uint8_t(function), uint8_t(addr >> 8),
                            uint8_t(addr),       uint8_t(nb >> 8),  uint8_t(nb)};
    uint8_t rsp[MODBUS_MAX_ADU_LENGTH];
    const int rc = exchange(ctx, req, 6, rsp, 0);
    if (rc < 0)
        return -1;
    for (int i = 0; i < nb; ++i)
        dest[i] = (rsp[3 + i / 8] >> (i % 8)) & 1;
    return nb;
}

int readRegisters(modbus_t *ctx, int function, int addr, int nb, uint16_t *dest)
{
    if (!ctx) {
        errno = EINVAL;
        return -1;
    }
    if (nb > MODBUS_MAX_READ_REGISTERS) {
        errno = EMBMDATA;
        return -1;
    }
    if (!readyForExchange(ctx))
        return -1;
    if (nb < 0 || addr < 0 || addr > 0xFFFF || !dest) {
        errno = EINVAL;
        return -1;
    }
    if (refuseBroadcastRead(ctx))
        return -1;
    const uint8_t req[6] = {uint8_t(ctx->slave), uint8_t(function), uint8_t(addr >> 8),
                            uint8_t(addr),       uint8_t(nb >> 8),  uint8_t(nb)};
    uint8_t rsp[MODBUS_MAX_ADU_LENGTH];
    const int rc = exchange(ctx, req, 6, rsp, 0);
    if (rc < 0)
        return -1;
    for (int i = 0; i < nb; ++i)
        dest[i] = uint16_t(rsp[3 + 2 * i] << 8 | rsp[4 + 2 * i]);
    return nb;
}

int writeSingle(modbus_t *ctx, int function, int addr, int value)
{
    if (!ctx) {
        errno = EINVAL;
        return -1;
    }
    if (!readyForExchange(ctx))
        return -1;
    if (addr < 0 || addr > 0xFFFF) {
        errno = EINVAL;
        return -1;
    }
    const uint8_t req[6] = {uint8_t(ctx->slave), uint8_t(function),   uint8_t(addr >> 8),
                            uint8_t(addr),       uint8_t(value >> 8), uint8_t(value)};
    uint8_t rsp[MODBUS_MAX_ADU_LENGTH];
    return exchange(ctx, req, 6, rsp, 1);
}

} // namespace

// --- context internals -------------------------------------------------------

_modbus::_modbus()
{
    std::memset(&rxMsg, 0, sizeof rxMsg);
    std::memset(&txMsg, 0, sizeof txMsg);
}

_modbus::~_modbus() = default;

int64_t _modbus::nowUs()
{
    timespec ts;
    clock_gettime(CLOCK_MONOTONIC, &ts);
    return int64_t(ts.tv_sec) * 1000000 + ts.tv_nsec / 1000;
}

void _modbus::recordTx(const uint8_t *bytes, int length)
{
    ErrnoGuard guard;
    storeMsg(txMsg, bytes, length);
    if (debug)
        debugFrame(this, "TX", txMsg.buf, txMsg.length);
    if (txHandler)
        txHandler(this, txMsg.buf, uint8_t(txMsg.length > 255 ? 255 : txMsg.length));
}

void _modbus::recordRx(const uint8_t *bytes, int length)
{
    ErrnoGuard guard;
    storeMsg(rxMsg, bytes, length);
    if (debug)
        debugFrame(this, "RX", rxMsg.buf, rxMsg.length);
    if (rxHandler)
        rxHandler(this, rxMsg.buf, uint8_t(rxMsg.length > 255 ? 255 : rxMsg.length));
}

void _modbus::markReplyStart()
{
    time1Us = nowUs() - exchangeStartUs;
    replyStarted = true;
}

void _modbus::finishExchange()
{
    time2Us = nowUs() - exchangeStartUs;
    if (!replyStarted)
        time1Us = time2Us;
}

void modbus_set_link(modbus_t *ctx, ModbusLink *link)
{
    if (!ctx)
        return;
    ctx->link.reset(link);
    ctx->lastActivityUs = 0;
}

// --- public entry points -------------------------------------------------------

modbus_t *modbus_new_rtu(const char *device, int baud, char parity, int data_bit, int stop_bit)
{
    return newContext(false, device, baud, parity, data_bit, stop_bit);
}

modbus_t *modbus_new_ascii(const char *device, int baud, char parity, int data_bit, int stop_bit)
{
    return newContext(true, device, baud, parity, data_bit, stop_bit);
}

void modbus_ascii_set_delimiter(int delimiter)
{
    asciiDelimiter.store(delimiter & 0xFF);
}

int modbus_connect(modbus_t *ctx)
{
    if (!ctx) {
        errno = EINVAL;
        return -1;
    }
    ctx->link.reset();
    ModbusSerialLink *link = ModbusSerialLink::open(ctx->device.c_str(), ctx->baud, ctx->parity,
                                                    ctx->dataBits, ctx->stopBits);
    if (!link)
        return -1;
    ctx->link.reset(link);
    ctx->lastActivityUs = 0;
    return 0;
}

void modbus_close(modbus_t *ctx)
{
    if (ctx)
        ctx->link.reset();
}

void modbus_free(modbus_t *ctx)
{
    delete ctx;
}

int modbus_flush(modbus_t *ctx)
{
    if (!ctx) {
        errno = EINVAL;
        return -1;
    }
    if (!ctx->link) {
        errno = EBADF;
        return -1;
    }
    return ctx->link->discardInput();
}

void modbus_clear_txrx_bufs(modbus_t *ctx)
{
    if (!ctx)
        return;
    ctx->rxMsg.length = 0;
    ctx->txMsg.length = 0;
    ctx->time1Us = ctx->time2Us = 0;
}

int modbus_set_slave(modbus_t *ctx, int slave)
{
    if (!ctx || slave < 0 || slave > MODBUS_MAX_SLAVE_ADDRESS) {
        errno = EINVAL;
        return -1;
    }
    ctx->slave = slave;
    return 0;
}

int modbus_get_slave(modbus_t *ctx)
{
    if (!ctx) {
        errno = EINVAL;
        return -1;
    }
    return ctx->slave;
}

int modbus_set_debug(modbus_t *ctx, int flag)
{
    if (!ctx) {
        errno = EINVAL;
        return -1;
    }
    ctx->debug = flag != 0;
    return 0;
}

int modbus_get_socket(modbus_t *ctx)
{
    if (!ctx) {
        errno = EINVAL;
        return -1;
    }
    return ctx->link ? ctx->link->descriptor() : -1;
}

int modbus_set_socket(modbus_t *ctx, int fd)
{
    if (!ctx || fd < 0) {
        errno = EINVAL;
        return -1;
    }
    ctx->link.reset(new ModbusSerialLink(fd));
    ctx->lastActivityUs = 0;
    return 0;
}

void modbus_set_dbg_context(modbus_t *ctx, const char *text)
{
    if (ctx)
        ctx->dbgContext = text ? text : "";
}

const char *modbus_get_dbg_context(const modbus_t *ctx)
{
    return ctx ? ctx->dbgContext.c_str() : nullptr;
}

void modbus_set_rx_dbg_handler(modbus_t *ctx, modbus_dbg_handler_t handler)
{
    if (ctx)
        ctx->rxHandler = handler;
}

void modbus_set_tx_dbg_handler(modbus_t *ctx, modbus_dbg_handler_t handler)
{
    if (ctx)
        ctx->txHandler = handler;
}

const modbus_msg_t *modbus_get_rx_msg(const modbus_t *ctx)
{
    return ctx ? &ctx->rxMsg : &emptyMsg;
}

const modbus_msg_t *modbus_get_tx_msg(const modbus_t *ctx)
{
    return ctx ? &ctx->txMsg : &emptyMsg;
}

int modbus_get_response_time1(const modbus_t *ctx, struct timeval *tv)
{
    if (!ctx || !tv) {
        errno = EINVAL;
        return -1;
    }
    toTimeval(ctx->time1Us, tv);
    return 0;
}

int modbus_get_response_time2(const modbus_t *ctx, struct timeval *tv)
{
    if (!ctx || !tv) {
        errno = EINVAL;
        return -1;
    }
    toTimeval(ctx->time2Us, tv);
    return 0;
}

int modbus_get_response_timeout(modbus_t *ctx, struct timeval *timeout)
{
    if (!ctx || !timeout) {
        errno = EINVAL;
        return -1;
    }
    toTimeval(ctx->responseTimeoutUs, timeout);
    return 0;
}

int modbus_set_response_timeout(modbus_t *ctx, const struct timeval *timeout)
{
    // As libmodbus 3.1: a zero response timeout would fail every exchange.
    if (!ctx || !validTimeval(timeout) || (timeout->tv_sec == 0 && timeout->tv_usec == 0)) {
        errno = EINVAL;
        return -1;
    }
    ctx->responseTimeoutUs = int64_t(timeout->tv_sec) * 1000000 + timeout->tv_usec;
    return 0;
}

int modbus_get_byte_timeout(modbus_t *ctx, struct timeval *timeout)
{
    if (!ctx || !timeout) {
        errno = EINVAL;
        return -1;
    }
    toTimeval(ctx->byteTimeoutUs, timeout);
    return 0;
}

int modbus_set_byte_timeout(modbus_t *ctx, const struct timeval *timeout)
{
    if (!ctx || !validTimeval(timeout)) {
        errno = EINVAL;
        return -1;
    }
    ctx->byteTimeoutUs = int64_t(timeout->tv_sec) * 1000000 + timeout->tv_usec;
    return 0;
}

int modbus_read_bits(modbus_t *ctx, int addr, int nb, uint8_t *dest)
{
    return readBits(ctx, MODBUS_FC_READ_COILS, addr, nb, dest);
}

int modbus_read_input_bits(modbus_t *ctx, int addr, int nb, uint8_t *dest)
{
    return readBits(ctx, MODBUS_FC_READ_DISCRETE_INPUTS, addr, nb, dest);
}

int modbus_read_registers(modbus_t *ctx, int addr, int nb, uint16_t *dest)
{
    return readRegisters(ctx, MODBUS_FC_READ_HOLDING_REGISTERS, addr, nb, dest);
}

int modbus_read_input_registers(modbus_t *ctx, int addr, int nb, uint16_t *dest)
{
    return readRegisters(ctx, MODBUS_FC_READ_INPUT_REGISTERS, addr, nb, dest);
}

int modbus_write_bit(modbus_t *ctx, int addr, int status)
{
    return writeSingle(ctx, MODBUS_FC_WRITE_SINGLE_COIL, addr, status ? 0xFF00 : 0);
}

int modbus_write_register(modbus_t *ctx, int addr, int value)
{
    return writeSingle(ctx, MODBUS_FC_WRITE_SINGLE_REGISTER, addr, value & 0xFFFF);
}

int modbus_write_bits(modbus_t *ctx, int addr, int nb, const uint8_t *src)
{
    if (!ctx) {
        errno = EINVAL;
        return -1;
    }
    if (nb > MODBUS_MAX_WRITE_BITS) {
        errno = EMBMDATA;
        return -1;
    }
    if (!readyForExchange(ctx))
        return -1;
    if (nb < 1 || addr < 0 || addr > 0xFFFF || !src) {
        errno = EINVAL;
        return -1;
    }
    uint8_t req[MODBUS_MAX_ADU_LENGTH] = {uint8_t(ctx->slave),  MODBUS_FC_WRITE_MULTIPLE_COILS,
                                          uint8_t(addr >> 8),   uint8_t(addr),
                                          uint8_t(nb >> 8),     uint8_t(nb),
                                          uint8_t((nb + 7) / 8)};
    for (int i = 0; i < nb; ++i) {
        if (src[i])
            req[7 + i / 8] |= uint8_t(1 << (i % 8));
    }
    uint8_t rsp[MODBUS_MAX_ADU_LENGTH];
    return exchange(ctx, req, 7 + (nb + 7) / 8, rsp, nb);
}

int modbus_write_registers(modbus_t *ctx, int addr, int nb, const uint16_t *src)
{
    if (!ctx) {
        errno = EINVAL;
        return -1;
    }
    if (nb > MODBUS_MAX_WRITE_REGISTERS) {
        errno = EMBMDATA;
        return -1;
    }
    if (!readyForExchange(ctx))
        return -1;
    if (nb < 1 || addr < 0 || addr > 0xFFFF || !src) {
        errno = EINVAL;
        return -1;
    }
    uint8_t req[MODBUS_MAX_ADU_LENGTH] = {uint8_t(ctx->slave), MODBUS_FC_WRITE_MULTIPLE_REGISTERS,
                                          uint8_t(addr >> 8),  uint8_t(addr),
                                          uint8_t(nb >> 8),    uint8_t(nb),
                                          uint8_t(2 * nb)};
    for (int i = 0; i < nb; ++i) {
        req[7 + 2 * i] = uint8_t(src[i] >> 8);
        req[8 + 2 * i] = uint8_t(src[i]);
    }
    uint8_t rsp[MODBUS_MAX_ADU_LENGTH];
    return exchange(ctx, req, 7 + 2 * nb, rsp, nb);
}

int modbus_report_slave_id(modbus_t *ctx, uint8_t *dest)
{
    if (!ctx || !dest) {
        errno = EINVAL;
        return -1;
    }
    if (!readyForExchange(ctx) || refuseBroadcastRead(ctx))
        return -1;
    const uint8_t req[2] = {uint8_t(ctx->slave), MODBUS_FC_REPORT_SLAVE_ID};
    uint8_t rsp[MODBUS_MAX_ADU_LENGTH];
    if (sendRequest(ctx, req, 2) < 0)
        return -1;
    const int rc = receiveReply(ctx, req[0], rsp);
    if (rc < 0)
        return -1;
    const int end = rc - ctx->backend->checksumLength();
    if (end >= 3 && rsp[1] == (MODBUS_FC_REPORT_SLAVE_ID | 0x80))
        return checkConfirmation(ctx, req, 2, rsp, rc); // sets the exception code
    if (end < 3 || rsp[1] != MODBUS_FC_REPORT_SLAVE_ID) {
        errno = EMBBADDATA;
        return -1;
    }
    // The payload is opaque: its checksummed extent counts, not the byte
    // count, which some instruments get wrong.
    const int payload = end - 3;
    std::memcpy(dest, rsp + 3, size_t(payload));
    return payload;
}

int modbus_send_raw_request(modbus_t *ctx, uint8_t *raw_req, int raw_req_length)
{
    if (!ctx || !raw_req || raw_req_length < 2 || raw_req_length > MODBUS_MAX_PDU_LENGTH + 1) {
        errno = EINVAL;
        return -1;
    }
    if (!ctx->link) {
        errno = EBADF;
        return -1;
    }
    const int rc = sendRequest(ctx, raw_req, raw_req_length);
    if (rc >= 0 && raw_req[0] == MODBUS_BROADCAST_ADDRESS)
        ctx->finishExchange();
    return rc;
}

int modbus_receive_confirmation(modbus_t *ctx, uint8_t *rsp)
{
    if (!ctx || !rsp) {
        errno = EINVAL;
        return -1;
    }
    if (!ctx->link) {
        errno = EBADF;
        return -1;
    }
    const int slave = ctx->rawSlave >= 0 ? ctx->rawSlave : ctx->slave;
    if (slave < 0) {
        errno = EINVAL;
        return -1;
    }
    const int rc = receiveReply(ctx, slave, rsp);
    if (rc < 0)
        return -1;
    if (ctx->rawFunction >= 0 && rsp[1] != ctx->rawFunction
        && rsp[1] != (ctx->rawFunction | 0x80)) {
        errno = EMBBADDATA;
        return -1;
    }
    return rc;
}

const char *modbus_strerror(int errnum)
{
    switch (errnum) {
    case EMBXILFUN:
        return "Illegal function";
    case EMBXILADD:
        return "Illegal data address";
    case EMBXILVAL:
        return "Illegal data value";
    case EMBXSFAIL:
        return "Slave device or server failure";
    case EMBXACK:
        return "Acknowledge";
    case EMBXSBUSY:
        return "Slave device or server is busy";
    case EMBXNACK:
        return "Negative acknowledge";
    case EMBXMEMPAR:
        return "Memory parity error";
    case EMBXGPATH:
        return "Gateway path unavailable";
    case EMBXGTAR:
        return "Target device failed to respond";
    case EMBBADCRC:
        return "Invalid CRC";
    case EMBBADDATA:
        return "Invalid data";
    case EMBBADEXC:
        return "Invalid exception code";
    case EMBMDATA:
        return "Too many data";
    case EMBBADSLAVE:
        return "Response not from requested slave";
    default:
        return std::strerror(errnum);
    }
}
