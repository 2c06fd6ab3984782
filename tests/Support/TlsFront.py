# Takes TLS connections on 127.0.0.1 and hands their requests on to a plain server, one after the
# other: TlsFront.py CERTIFICATE KEY PORT. Prints its own port; ends with its standard input.
# A connection ends without TLS's own goodbye.
import os
import socket
import ssl
import sys
import threading


def end_with_standard_input():
    sys.stdin.read()
    os._exit(0)


def serve(client, port):
    head = b""
    while not head.endswith(b"\r\n\r\n"):
        piece = client.recv(65536)
        if not piece:
            return
        head += piece
    with socket.create_connection(("127.0.0.1", port)) as server:
        server.sendall(head)
        while piece := server.recv(65536):
            client.sendall(piece)


context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
context.load_cert_chain(sys.argv[1], sys.argv[2])
with socket.create_server(("127.0.0.1", 0)) as listener:
    print(listener.getsockname()[1], flush=True)
    threading.Thread(target=end_with_standard_input, daemon=True).start()
    while True:
        plain, _ = listener.accept()
        try:
            with context.wrap_socket(plain, server_side=True) as client:
                serve(client, int(sys.argv[3]))
        except OSError:
            plain.close()
