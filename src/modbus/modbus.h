/*
 * Serial Modbus master (RTU and ASCII) with libmodbus-style entry points.
 *
 * The calls keep libmodbus's conventions: they return -1 (or NULL) on
 * failure and leave the reason in errno, which the caller reads right after
 * the call in the same thread. Library codes lie above MODBUS_ENOBASE and are
 * turned into text by modbus_strerror().
 *
 * A context is used by one thread at a time; the caller serialises access.
 * The only process-wide state is the ASCII frame delimiter.
 *
 * Extensions beyond the stock library: ASCII framing, the frame records of
 * the last exchange, debug handlers called for every frame, a label for the
 * exchange and the two measured response times.
 */
#ifndef REGDESK_MODBUS_H
#define REGDESK_MODBUS_H

#include <stdint.h>
#include <sys/time.h>

#ifdef __cplusplus
extern "C" {
#endif

#define MODBUS_BROADCAST_ADDRESS 0
#define MODBUS_MAX_SLAVE_ADDRESS 247

/* Function codes */
#define MODBUS_FC_READ_COILS 0x01
#define MODBUS_FC_READ_DISCRETE_INPUTS 0x02
#define MODBUS_FC_READ_HOLDING_REGISTERS 0x03
#define MODBUS_FC_READ_INPUT_REGISTERS 0x04
#define MODBUS_FC_WRITE_SINGLE_COIL 0x05
#define MODBUS_FC_WRITE_SINGLE_REGISTER 0x06
#define MODBUS_FC_READ_EXCEPTION_STATUS 0x07
#define MODBUS_FC_WRITE_MULTIPLE_COILS 0x0F
#define MODBUS_FC_WRITE_MULTIPLE_REGISTERS 0x10
#define MODBUS_FC_REPORT_SLAVE_ID 0x11

/* Quantity limits of one request; more gives EMBMDATA without touching the line. */
#define MODBUS_MAX_READ_BITS 2000
#define MODBUS_MAX_WRITE_BITS 1968
#define MODBUS_MAX_READ_REGISTERS 125
#define MODBUS_MAX_WRITE_REGISTERS 123

/* PDU: function code and data. */
#define MODBUS_MAX_PDU_LENGTH 253
/* Largest reply modbus_receive_confirmation() ever writes to its buffer, in
 * bytes: an RTU frame is at most 256 bytes, the margin keeps libmodbus's size.
 * Give the call a buffer of at least this size. */
#define MODBUS_MAX_ADU_LENGTH 260
#define MODBUS_RTU_MAX_ADU_LENGTH 256
/* Largest ASCII frame on the line, in characters (':' to the delimiter). Such
 * a frame decodes to at most 255 bytes, so the buffer rule above covers it. */
#define MODBUS_ASCII_MAX_ADU_LENGTH 513

/* Size of the frame records returned by modbus_get_rx_msg()/modbus_get_tx_msg(). */
#define MODBUS_MSG_BUFFER_SIZE 2048

#define MODBUS_ENOBASE 112345678

enum {
    MODBUS_EXCEPTION_ILLEGAL_FUNCTION = 0x01,
    MODBUS_EXCEPTION_ILLEGAL_DATA_ADDRESS,
    MODBUS_EXCEPTION_ILLEGAL_DATA_VALUE,
    MODBUS_EXCEPTION_SLAVE_OR_SERVER_FAILURE,
    MODBUS_EXCEPTION_ACKNOWLEDGE,
    MODBUS_EXCEPTION_SLAVE_OR_SERVER_BUSY,
    MODBUS_EXCEPTION_NEGATIVE_ACKNOWLEDGE,
    MODBUS_EXCEPTION_MEMORY_PARITY,
    MODBUS_EXCEPTION_NOT_DEFINED,
    MODBUS_EXCEPTION_GATEWAY_PATH,
    MODBUS_EXCEPTION_GATEWAY_TARGET,
    MODBUS_EXCEPTION_MAX
};

/* An exception reply with code N sets errno to MODBUS_ENOBASE + N. */
#define EMBXILFUN (MODBUS_ENOBASE + MODBUS_EXCEPTION_ILLEGAL_FUNCTION)
#define EMBXILADD (MODBUS_ENOBASE + MODBUS_EXCEPTION_ILLEGAL_DATA_ADDRESS)
#define EMBXILVAL (MODBUS_ENOBASE + MODBUS_EXCEPTION_ILLEGAL_DATA_VALUE)
#define EMBXSFAIL (MODBUS_ENOBASE + MODBUS_EXCEPTION_SLAVE_OR_SERVER_FAILURE)
#define EMBXACK (MODBUS_ENOBASE + MODBUS_EXCEPTION_ACKNOWLEDGE)
#define EMBXSBUSY (MODBUS_ENOBASE + MODBUS_EXCEPTION_SLAVE_OR_SERVER_BUSY)
#define EMBXNACK (MODBUS_ENOBASE + MODBUS_EXCEPTION_NEGATIVE_ACKNOWLEDGE)
#define EMBXMEMPAR (MODBUS_ENOBASE + MODBUS_EXCEPTION_MEMORY_PARITY)
#define EMBXGPATH (MODBUS_ENOBASE + MODBUS_EXCEPTION_GATEWAY_PATH)
#define EMBXGTAR (MODBUS_ENOBASE + MODBUS_EXCEPTION_GATEWAY_TARGET)

/* The library's own codes follow the exception range with one spare slot;
 * the application relies on EMBBADCRC being 112345691. */
#define EMBBADCRC (MODBUS_ENOBASE + MODBUS_EXCEPTION_MAX + 1) /* bad CRC or LRC */
#define EMBBADDATA (MODBUS_ENOBASE + MODBUS_EXCEPTION_MAX + 2) /* malformed or mismatched reply */
#define EMBBADEXC (MODBUS_ENOBASE + MODBUS_EXCEPTION_MAX + 3) /* exception code out of range */
#define EMBUNKEXC (MODBUS_ENOBASE + MODBUS_EXCEPTION_MAX + 4) /* reserved, never set */
#define EMBMDATA (MODBUS_ENOBASE + MODBUS_EXCEPTION_MAX + 5) /* too many data in a request */
#define EMBBADSLAVE (MODBUS_ENOBASE + MODBUS_EXCEPTION_MAX + 6) /* invalid slave address */

typedef struct _modbus modbus_t;

/* Record of the last frame in one direction. RTU: the bytes on the wire,
 * CRC included. ASCII: the frame decoded to bytes (address, PDU, LRC); a
 * received frame that cannot be decoded is kept as the raw characters, so
 * that garbage stays visible in the traffic log. length 0: no frame. */
typedef struct _modbus_msg
{
    uint8_t buf[MODBUS_MSG_BUFFER_SIZE];
    int length;
} modbus_msg_t;

/* Called for every frame sent or received (including refused ones: another
 * slave, bad checksum, cut off), in the thread of the exchange. length is the
 * record's length, capped at 255. */
typedef void (*modbus_dbg_handler_t)(modbus_t *ctx, const uint8_t *bytes, uint8_t length);

/* Contexts. device is a path such as "/dev/ttyUSB0"; parity 'N', 'E' or 'O';
 * data_bit 7 or 8; stop_bit 1 or 2. NULL and errno EINVAL on a bad argument.
 * Defaults: slave unset (-1), response and byte timeout 500 ms each. */
modbus_t *modbus_new_rtu(const char *device, int baud, char parity, int data_bit, int stop_bit);
modbus_t *modbus_new_ascii(const char *device, int baud, char parity, int data_bit, int stop_bit);
/* Frame end character of ASCII contexts created afterwards (default 10, LF).
 * Process-wide; only the low 8 bits count. */
void modbus_ascii_set_delimiter(int delimiter);

/* Opens the line: O_RDWR|O_NOCTTY|O_NONBLOCK, exclusive (TIOCEXCL), raw
 * mode with the context's settings. 0, or -1 with errno (ENOENT, EBUSY,
 * ENOTTY, EINVAL for an unsupported speed...). */
int modbus_connect(modbus_t *ctx);
void modbus_close(modbus_t *ctx);
void modbus_free(modbus_t *ctx);
/* Discards what waits in the line's input; the count of bytes dropped when
 * known, otherwise 0; -1 with errno when the line is not open. */
int modbus_flush(modbus_t *ctx);
/* Empties both frame records and the response times. */
void modbus_clear_txrx_bufs(modbus_t *ctx);

int modbus_set_slave(modbus_t *ctx, int slave); /* 0..247; 0 is broadcast */
int modbus_get_slave(modbus_t *ctx);
int modbus_set_debug(modbus_t *ctx, int flag); /* frames as hex on stderr */
int modbus_get_socket(modbus_t *ctx);
int modbus_set_socket(modbus_t *ctx, int fd); /* adopts an open descriptor */

/* Label of the exchange for the debug handlers; the text is copied. */
void modbus_set_dbg_context(modbus_t *ctx, const char *text);
const char *modbus_get_dbg_context(const modbus_t *ctx); /* "" when unset, NULL for NULL */
void modbus_set_rx_dbg_handler(modbus_t *ctx, modbus_dbg_handler_t handler);
void modbus_set_tx_dbg_handler(modbus_t *ctx, modbus_dbg_handler_t handler);
/* Never NULL: a NULL context yields an empty record. */
const modbus_msg_t *modbus_get_rx_msg(const modbus_t *ctx);
const modbus_msg_t *modbus_get_tx_msg(const modbus_t *ctx);

/* Response times of the last exchange, both counted from the moment the
 * first byte of the request is handed to the line (after the inter-frame
 * silence):
 *   time1: until the first byte (RTU) or the ':' (ASCII) of the last frame
 *          received arrived, i.e. the wait for the reply;
 *   time2: until the exchange ended: the reply's last byte, or the moment
 *          the library gave up (timeout, bad frame), or the end of sending
 *          when no reply is expected (broadcast).
 * With no frame received time1 equals time2. tv_usec is always below
 * 1000000. Zero before any exchange and after modbus_clear_txrx_bufs().
 * 0, or -1 with EINVAL for a NULL argument. */
int modbus_get_response_time1(const modbus_t *ctx, struct timeval *tv);
int modbus_get_response_time2(const modbus_t *ctx, struct timeval *tv);

/* Response timeout: the wait for the start of the reply. Byte timeout: the
 * longest silence inside a frame; 0 makes the response timeout apply there
 * too. tv_usec must lie in 0..999999, else -1 and EINVAL. */
int modbus_get_response_timeout(modbus_t *ctx, struct timeval *timeout);
int modbus_set_response_timeout(modbus_t *ctx, const struct timeval *timeout);
int modbus_get_byte_timeout(modbus_t *ctx, struct timeval *timeout);
int modbus_set_byte_timeout(modbus_t *ctx, const struct timeval *timeout);

/* How replies are judged (all data functions and function 17):
 *  - input waiting before a request is discarded: a late reply to an earlier
 *    request must not be taken for the answer to this one;
 *  - RTU waits 3.5 characters of silence (1.75 ms above 19200 baud) since
 *    the line's last byte before it sends;
 *  - a well-formed frame from another slave is skipped and the wait goes on
 *    until the response timeout, which then gives ETIMEDOUT: on a shared bus
 *    it is someone else's reply, and failing at once would lose step;
 *  - no reply at all: ETIMEDOUT after the whole response timeout;
 *  - a frame that stops midway for longer than the byte timeout: ETIMEDOUT
 *    at once (a fragment that cannot be ours, RTU noise or another slave's,
 *    is skipped like a foreign frame);
 *  - a bad CRC or LRC: EMBBADCRC, and the rest of the input is discarded.
 *    RTU has no start marker, so noise glued to a reply ends here; ASCII
 *    skips anything before ':' and restarts on a new ':';
 *  - an ASCII frame with an odd number of characters, a character that is
 *    not hexadecimal, or fewer than 3 bytes: EMBBADDATA, input discarded;
 *  - an exception reply: errno MODBUS_ENOBASE + code, EMBBADEXC for a code
 *    beyond the known ones;
 *  - a reply for another function, of the wrong length or count, or echoing
 *    another address (writes): EMBBADDATA;
 *  - the line gone (unplugged adapter, hung-up pty): EIO, so that the caller
 *    can close the port.
 */

/* Data functions: the count of items on success, -1 and errno on failure.
 * Bits are one byte each (0 or 1), registers in host order. A write to the
 * broadcast address returns once the request is sent; a read from it fails
 * with EINVAL. */
int modbus_read_bits(modbus_t *ctx, int addr, int nb, uint8_t *dest);
int modbus_read_input_bits(modbus_t *ctx, int addr, int nb, uint8_t *dest);
int modbus_read_registers(modbus_t *ctx, int addr, int nb, uint16_t *dest);
int modbus_read_input_registers(modbus_t *ctx, int addr, int nb, uint16_t *dest);
int modbus_write_bit(modbus_t *ctx, int addr, int status);
int modbus_write_register(modbus_t *ctx, int addr, int value);
int modbus_write_bits(modbus_t *ctx, int addr, int nb, const uint8_t *src);
int modbus_write_registers(modbus_t *ctx, int addr, int nb, const uint16_t *src);

/* Function 17. dest receives the reply's payload behind the byte count
 * (slave id, run indicator, device text...) and must hold
 * MODBUS_MAX_PDU_LENGTH bytes. Returns the payload length, which is the
 * byte count of a well-formed reply; the payload is taken as opaque, so a
 * reply whose byte count disagrees with its checksummed length is ended by
 * the line falling silent and the real payload length is returned. */
int modbus_report_slave_id(modbus_t *ctx, uint8_t *dest);

/* raw_req: slave address, function code, data (2..254 bytes); the library
 * adds the framing and checksum. Returns the number of bytes sent (frame
 * length on the wire), -1 and errno on failure. */
int modbus_send_raw_request(modbus_t *ctx, uint8_t *raw_req, int raw_req_length);
/* Reply to the last raw request: address, function, data and checksum
 * (RTU: 2 CRC bytes; ASCII: 1 LRC byte) written to rsp, which must hold
 * MODBUS_MAX_ADU_LENGTH bytes. Returns that length, -1 and errno on
 * failure. An exception reply from the slave is returned as a frame, not as
 * an error. The length follows from the function for standard functions,
 * from the byte count in the third byte for others where it fits the
 * checksum, and otherwise from the line falling silent for the byte
 * timeout. Frames from other slaves are skipped. */
int modbus_receive_confirmation(modbus_t *ctx, uint8_t *rsp);

const char *modbus_strerror(int errnum);

#ifdef __cplusplus
}
#endif

#endif // REGDESK_MODBUS_H
