"""Running commands so that an interrupted or overdue one leaves nothing behind."""

import os
import pathlib
import signal
import subprocess


def stop_on_signals():
    """Makes the ending signals unwind the program, so that everything it started is ended."""

    def interrupt(number, _frame):
        raise KeyboardInterrupt(signal.Signals(number).name)

    for number in (signal.SIGINT, signal.SIGTERM, signal.SIGHUP):
        signal.signal(number, interrupt)


def step_back():
    """For a command's own start: lets the processor serve whoever else wants it first, tests that time others above all.

    Where the kernel shares the processor out by sessions, niceness counts inside a session only, so that steps back too.
    """
    os.nice(19)
    try:
        pathlib.Path("/proc/self/autogroup").write_text("19")
    except OSError:
        pass  # it shares out by tasks


class Command:
    """A command at work, in a process group of its own; leaving the context ends what is still running of it."""

    def __init__(self, command, **options):
        self._process = subprocess.Popen(command, start_new_session=True, **options)

    def wait(self, seconds):
        """Yields the exit code; None when it takes longer."""
        try:
            return self._process.wait(seconds)
        except subprocess.TimeoutExpired:
            return None

    def stop(self):
        if self._process.poll() is not None:
            return
        os.killpg(self._process.pid, signal.SIGTERM)
        if self.wait(15) is None:
            os.killpg(self._process.pid, signal.SIGKILL)
            self._process.wait()

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.stop()


def run(command, seconds, **options):
    """Runs a command and yields its exit code; None when it took too long and was ended."""
    with Command(command, **options) as running:
        return running.wait(seconds)
