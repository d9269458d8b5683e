// SPDX-License-Identifier: MIT
package mero.rain;

import java.io.IOException;
import java.nio.file.Files;
import java.nio.file.Path;

/** A data folder with two stations, one for each kind of last column. Tests damage it. */
final class SmallFolder {
    static final String STATIONS = "position;name;number\n1;Aš;7\n2;Žďár nad Sázavou;3\n";
    static final String ROWS =
            """
            5,1.5,2,3,4,5,6,7
            10,1.4,2,3,4,5,6,7
            15,1.3,2,3,4,5,6,7
            20,1.2,2,3,4,5,6,7
            30,1.1,2,3,4,5,6,7
            45,1.0,2,3,4,5,6,7
            60,0.9,2,3,4,5,6,7
            90,0.8,2,3,4,5,6,7
            120,0.7,2,3,4,5,6,131.2
            """;

    private SmallFolder() {}

    static void writeTo(Path folder) throws IOException {
        Files.createDirectories(folder.resolve("rain"));
        Files.writeString(folder.resolve("stations.csv"), STATIONS);
        Files.writeString(folder.resolve("rain/List7.csv"), "doba,5,2,1,05,02,01,005\n" + ROWS);
        Files.writeString(folder.resolve("rain/List3.csv"), "doba,5,2,1,05,02,01,004\n" + ROWS);
    }
}
