// SPDX-License-Identifier: MIT
package mero.rain;

import java.io.IOException;
import java.nio.charset.CharacterCodingException;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.NoSuchFileException;
import java.nio.file.Path;
import java.util.List;

/** Reads the lines of a UTF-8 file and skips a byte order mark, which spreadsheets write. */
final class TextFile {
    private TextFile() {}

    static List<String> lines(Path file) throws IOException, InputException {
        try {
            String text = Files.readString(file, StandardCharsets.UTF_8);
            return (text.startsWith("\uFEFF") ? text.substring(1) : text).lines().toList();
        } catch (NoSuchFileException e) {
            throw new InputException(file, "the file is missing");
        } catch (CharacterCodingException e) {
            throw new InputException(file, "the file is not UTF-8 text");
        }
    }
}
