#pragma once

/// Asks the print server for its printers, off the main thread, and waits 5 s at most; windows are repainted
/// meanwhile. After that the toolkit never waits for a server that does not answer, or is slow: it finds no
/// printer, so that only printing to a file is offered. The next call asks again.
void AskPrintServer();
