CLEARCLIPBOARD
REM erwartet: Die Zwischenablage wurde gelöscht.
