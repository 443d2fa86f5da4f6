"""Stands between a program and a server on the loopback interface, and counts what the server sends.

usage: count_bytes.py PORT FOLDER
Listens on a free port, written to FOLDER/port; each connection's bytes are added to FOLDER/bytes, a line each,
once it ends.
"""
import os
import socket
import sys
import threading


def pump(source, target, done):
    count = 0
    try:
        while data := source.recv(1 << 18):
            target.sendall(data)
            count += len(data)
    except OSError:
        pass
    for end in (source, target):
        try:
            end.shutdown(socket.SHUT_RDWR)
        except OSError:
            pass
    done(count)


def main():
    port, folder = int(sys.argv[1]), sys.argv[2]

    def record(count):
        with open(os.path.join(folder, "bytes"), "a", encoding="ascii") as file:
            file.write(f"{count}\n")

    listener = socket.create_server(("127.0.0.1", 0))
    with open(os.path.join(folder, "port"), "w", encoding="ascii") as file:
        file.write(str(listener.getsockname()[1]))
    while True:
        client, _ = listener.accept()
        server = socket.create_connection(("127.0.0.1", port))
        threading.Thread(target=pump, args=(client, server, lambda count: None), daemon=True).start()
        threading.Thread(target=pump, args=(server, client, record), daemon=True).start()


main()
