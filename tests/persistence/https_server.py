#!/usr/bin/env python3
"""A web server over HTTPS that misbehaves on request, for tests of downloads.

    https_server.py FOLDER

Makes an authority of its own and leaves its certificate in FOLDER/ca.pem, then serves the files of
FOLDER on "localhost" and prints the port. The first part of a path tells what to do:

    /file/NAME?modified=DATE   the file, with this Last-Modified
    /long/NAME, /short/NAME    the same, announced as longer or shorter than it is
    /status/CODE               an error
    /redirect?to=URL           a redirection
    /silent                    no answer at all
    /stalled, /dripping        headers, then nothing; then a byte now and then
    /huge, /endless            a file that is announced as huge; one that never ends

The same files are served without encryption on the second port that it prints. Each request that
arrives is a further line of output.
"""

import http.server
import ssl
import subprocess
import sys
import threading
import time
from pathlib import Path
from urllib.parse import parse_qs, urlsplit

KEY = ["-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:prime256v1", "-nodes", "-days", "2"]


def make_certificates(folder: Path) -> None:
    def openssl(*arguments: str) -> None:
        subprocess.run(["openssl", "req", "-x509", *KEY, *arguments],
                       cwd=folder, check=True, capture_output=True)

    openssl("-subj", "/CN=Test Authority", "-keyout", "ca.key", "-out", "ca.pem")
    openssl("-subj", "/CN=localhost", "-addext", "subjectAltName=DNS:localhost",
            "-addext", "basicConstraints=critical,CA:FALSE", "-CA", "ca.pem", "-CAkey", "ca.key",
            "-keyout", "server.key", "-out", "server.pem")


class Handler(http.server.BaseHTTPRequestHandler):
    def do_GET(self) -> None:
        print(self.path, flush=True)
        url = urlsplit(self.path)
        query = {name: values[0] for name, values in parse_qs(url.query).items()}
        what, _, rest = url.path[1:].partition("/")
        try:
            getattr(self, what)(rest, query)
        except (ConnectionError, ssl.SSLError):
            pass  # the client has had enough

    def file(self, name: str, query: dict, announce=lambda size: size) -> None:
        body = (FOLDER / name).read_bytes()
        self.send_response(200)
        self.send_header("Content-Length", str(announce(len(body))))
        if "modified" in query:
            self.send_header("Last-Modified", query["modified"])
        self.end_headers()
        self.wfile.write(body)

    def long(self, name: str, query: dict) -> None:
        self.file(name, query, lambda size: 2 * size)

    def short(self, name: str, query: dict) -> None:
        self.file(name, query, lambda size: size // 2)

    def status(self, code: str, query: dict) -> None:
        self.send_error(int(code))

    def redirect(self, _: str, query: dict) -> None:
        self.send_response(302)
        self.send_header("Location", query["to"])
        self.send_header("Content-Length", "0")
        self.end_headers()

    def silent(self, _: str, query: dict) -> None:
        self.rfile.read(1)  # until the client goes

    def stalled(self, _: str, query: dict) -> None:
        self.send_response(200)
        self.send_header("Content-Length", "1000")
        self.end_headers()
        self.wfile.write(b"PK")
        self.rfile.read(1)

    def dripping(self, _: str, query: dict) -> None:
        self.send_response(200)
        self.end_headers()
        while True:
            self.wfile.write(b"P")
            time.sleep(0.01)

    def huge(self, _: str, query: dict) -> None:
        self.send_response(200)
        self.send_header("Content-Length", str(1 << 40))
        self.end_headers()
        self.rfile.read(1)

    def endless(self, _: str, query: dict) -> None:
        self.send_response(200)
        self.end_headers()
        while True:
            self.wfile.write(bytes(1 << 16))

    def log_message(self, *_) -> None:
        pass


class Server(http.server.ThreadingHTTPServer):
    daemon_threads = True

    def handle_error(self, *_) -> None:
        pass  # handshakes that a client refuses are part of the tests


if __name__ == "__main__":
    FOLDER = Path(sys.argv[1])
    make_certificates(FOLDER)
    context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
    context.load_cert_chain(FOLDER / "server.pem", FOLDER / "server.key")
    plain = Server(("127.0.0.1", 0), Handler)
    secure = Server(("127.0.0.1", 0), Handler)
    secure.socket = context.wrap_socket(
        secure.socket, server_side=True, do_handshake_on_connect=False
    )
    threading.Thread(target=plain.serve_forever, daemon=True).start()
    threading.Thread(target=secure.serve_forever, daemon=True).start()
    print(secure.server_port, plain.server_port, flush=True)
    sys.stdin.read()  # until the test goes
