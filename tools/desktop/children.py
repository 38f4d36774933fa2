"""Child processes that never outlive this one, however it ends."""
import ctypes
import signal
import subprocess

LIBC = ctypes.CDLL(None, use_errno=True)
PR_SET_PDEATHSIG = 1


def _die_with_parent():
    LIBC.prctl(PR_SET_PDEATHSIG, signal.SIGKILL)


def start(words, **options):
    return subprocess.Popen(words, preexec_fn=_die_with_parent, **options)


def stop(process):
    if process.poll() is None:
        process.terminate()
        try:
            process.wait(10)
        except subprocess.TimeoutExpired:
            process.kill()
            process.wait()
