"""nginx with the packaged configuration, in a folder of its own and on free ports, without rights of root."""

import os
import pathlib
import re
import resource
import subprocess
import time

from support import answers, free_port, setting, tool, wait_until

# Around the packaged file: what the system's own nginx.conf says otherwise.
AROUND = """
worker_processes 1;
pid {folder}/pid;
error_log {folder}/error.log;
events {{ worker_connections {most}; }}
http {{
  log_format asked '$request_uri $status $upstream_status';
  access_log {folder}/access.log asked;
  log_subrequest on;
  client_body_temp_path {folder}/body;
  proxy_temp_path {folder}/proxy;
  fastcgi_temp_path {folder}/fastcgi;
  uwsgi_temp_path {folder}/uwsgi;
  scgi_temp_path {folder}/scgi;
  include {folder}/hooptab.conf;
}}
"""


def most_files():
    """This process and those that it starts may have as many connections as the system lets them."""
    _, most = resource.getrlimit(resource.RLIMIT_NOFILE)
    resource.setrlimit(resource.RLIMIT_NOFILE, (most, most))
    return min(most, 20000)


class Nginx:
    """`may_stream`: whether this machine may hold streams, as the hall's may."""

    def __init__(self, folder, upstream, may_stream):
        self.folder = pathlib.Path(folder)
        self.port, self.safe_port = free_port(), free_port()
        self.name = "game.example.org"
        packaged = pathlib.Path(setting("HOOPTAB_SOURCE"), "packaging/nginx/hooptab.conf").read_text("utf-8")
        changes = {
            "127.0.0.1:8080": f"127.0.0.1:{upstream}", "/var/cache/nginx/hooptab": f"{folder}/cache",
            "listen 80": f"listen 127.0.0.1:{self.port}", "listen 443": f"listen 127.0.0.1:{self.safe_port}",
            "https://$host$request_uri": f"https://$host:{self.safe_port}$request_uri",
            "/etc/letsencrypt/live/game.example.org/fullchain.pem": f"{folder}/certificate.pem",
            "/etc/letsencrypt/live/game.example.org/privkey.pem": f"{folder}/key.pem",
            "127.0.0.0/8 1": f"127.0.0.0/8 {int(may_stream)}",
        }
        for was, now in changes.items():
            if was not in packaged:
                raise AssertionError(f"the packaged configuration has no {was!r}")
            packaged = packaged.replace(was, now)
        (self.folder / "hooptab.conf").write_text(packaged)
        (self.folder / "nginx.conf").write_text(AROUND.format(folder=folder, most=most_files()))
        subprocess.run([tool("openssl"), "req", "-x509", "-newkey", "rsa:2048", "-nodes", "-days", "2", "-subj",
                        f"/CN={self.name}", "-addext", f"subjectAltName=DNS:{self.name}", "-keyout", self.folder / "key.pem", "-out",
                        self.folder / "certificate.pem"], check=True, capture_output=True)
        self.errors = open(self.folder / "said", "w+", encoding="utf-8")
        words = [tool("nginx"), "-p", str(folder), "-e", f"{folder}/error.log", "-c", f"{folder}/nginx.conf", "-g",
                 "daemon off;" + (" user root;" if os.geteuid() == 0 else "")]
        self.process = subprocess.Popen(words, stderr=self.errors)
        wait_until(lambda: f"nginx listens: {self.said()}",
                   lambda: answers(self.port) or self.process.poll() is not None)
        if self.process.poll() is not None:
            raise AssertionError(self.said())

    def said(self):
        self.errors.seek(0)
        log = self.folder / "error.log"
        return self.errors.read() + (log.read_text() if log.exists() else "")

    def asked(self):
        """Each request so far: its address, the status given, and whether the server behind was asked."""
        time.sleep(0.2)  # a line of the log is written behind its answer
        lines = (self.folder / "access.log").read_text().splitlines()
        found = [re.fullmatch(r"(\S+) (\d+) (.*)", line).groups() for line in lines]
        return [(address, int(status), upstream != "-") for address, status, upstream in found]

    def stop(self):
        self.process.terminate()
        self.process.wait()
        self.errors.close()
