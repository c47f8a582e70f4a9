# SPDX-FileCopyrightText: 2026 Marivox Developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""A stand-in speech service for the benchmarks: it speaks enough of SSIP, the protocol of
speech-dispatcher, for libspeechd clients, and notes the monotonic time at which each text
arrives whole, with no synthesis after it to wait for.

    ssip_recorder.py <socket path> <log path>      log lines: "<ns> <text>"
"""

import os
import socket
import sys
import threading
import time


def serve(connection, log, lock):
    pending = b""
    receiving = None  # the lines of a text being sent
    message = 0
    with connection:
        while True:
            data = connection.recv(65536)
            if not data:
                return
            pending += data
            while b"\r\n" in pending:
                line, pending = pending.split(b"\r\n", 1)
                if receiving is not None:
                    if line == b".":
                        arrived = time.monotonic_ns()
                        message += 1
                        text = b"\n".join(receiving).decode("utf-8", "replace")
                        with lock:
                            log.write("%d %s\n" % (arrived, text.replace("\n", "\\n")))
                            log.flush()
                        receiving = None
                        connection.sendall(b"225-%d\r\n225 OK MESSAGE QUEUED\r\n" % message)
                    else:
                        receiving.append(line[1:] if line.startswith(b"..") else line)
                    continue
                words = line.split()
                command = words[0].upper() if words else b""
                if command == b"SPEAK":
                    receiving = []
                    connection.sendall(b"230 OK RECEIVING DATA\r\n")
                elif command == b"QUIT":
                    connection.sendall(b"231 HAPPY HACKING\r\n")
                    return
                elif command == b"HISTORY" and b"GET" in words[1:2]:
                    connection.sendall(b"243-1\r\n243 OK CLIENT ID SENT\r\n")
                elif command == b"SET" and b"CLIENT_NAME" in line.upper():
                    connection.sendall(b"208 OK CLIENT NAME SET\r\n")
                else:
                    connection.sendall(b"200 OK\r\n")


def main(path, log_path):
    if os.path.exists(path):
        os.unlink(path)
    server = socket.socket(socket.AF_UNIX, socket.SOCK_STREAM)
    server.bind(path)
    server.listen(16)
    lock = threading.Lock()
    with open(log_path, "w") as log:
        print("ready", flush=True)
        while True:
            connection, _ = server.accept()
            threading.Thread(target=serve, args=(connection, log, lock), daemon=True).start()


if __name__ == "__main__":
    main(sys.argv[1], sys.argv[2])
