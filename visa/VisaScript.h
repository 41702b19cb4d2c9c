#pragma once

/// How tests and demos tell the scripted VISA library what to do. The functions stand beside the six VISA calls in its
/// file; resolve them by name. Any thread.
extern "C" {

/// Replaces the script and puts a fresh instrument in the place of the old; calls that are held go on. "{}" is a good
/// instrument at any address. Null when the script is understood, else what is wrong with it, good until the next
/// call; nothing has changed then.
///
/// Members, all optional:
/// - `identity`: the text that "*IDN?" gets.
/// - `frequency`: the present frequency in hertz; the output is on then.
/// - `replies`: an object with the exact answer of questions, as `{"FREQ?": "9.91e37"}`; null: no answer.
/// - the name of one of the six calls, as `viOpen`: an object that says how it fails or waits. `status`: what it
///   returns, a VISA status as signed or unsigned number. `never`: it ends with the status of a time-out. `hold`: it
///   waits until `visaRelease`, then does its work. `from`: all this from its n-th call on only, 1 for the first.
const char* visaScript(const char* json);

/// The calls since the last asking as a JSON list of texts, as `["viOpen TCPIP0::10.0.0.2::inst0::INSTR", "viPrintf
/// *RST\n"]`. Good until the next call.
const char* visaJournal();

/// Hertz of the signal that the instrument puts out, whoever asks; 0 while the output is off and when `viOpen` fails by
/// the script. Below 0 before anybody has used the library.
int visaSignal();

/// Lets the calls that wait go on, and those that come later pass.
void visaRelease();
}
