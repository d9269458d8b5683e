// SPDX-License-Identifier: MIT
package mero.rain;

import java.nio.file.Path;

/** What is wrong with an input file, as "file:line: what", or "file: what" for a file as a whole. */
final class InputException extends Exception {
    private static final long serialVersionUID = 1L;

    InputException(Path file, int line, String what) {
        super(file + ":" + line + ": " + what);
    }

    InputException(Path file, String what) {
        super(file + ": " + what);
    }
}
