#pragma once

/// Asks the print server for its printers on another thread and waits at most 5 s. Windows are repainted
/// meanwhile. If the server does not answer, or is slow, the toolkit finds no printers, does not wait itself,
/// and only printing to a file is offered. The next call asks again.
void AskPrintServer();
