// SPDX-License-Identifier: MIT
package mero.rain;

import java.io.IOException;
import java.io.PrintStream;
import java.nio.charset.StandardCharsets;
import java.nio.file.Path;
import java.util.Map;
import java.util.Optional;

/** Command line of the tool. Exit status 0: done, 1: an input or output file is wrong, 2: wrong arguments. */
public final class Main {
    private static final String USAGE =
            """
            usage: rain-database build DATA_FOLDER DATABASE.mdb
                   rain-database demo-values DATA_FOLDER

            build        reads stations.csv, rain/List<N>.csv and, if there, demo.csv; writes the database
            demo-values  writes rain/List<N>.csv with computed demonstration values for every station
            """;

    private Main() {}

    public static void main(String[] arguments) {
        PrintStream errors = new PrintStream(System.err, true, StandardCharsets.UTF_8);
        System.exit(run(arguments, System.out, errors));
    }

    static int run(String[] arguments, PrintStream out, PrintStream errors) {
        try {
            if (arguments.length == 3 && arguments[0].equals("build")) {
                build(new DataFolder(Path.of(arguments[1])), Path.of(arguments[2]), out);
            } else if (arguments.length == 2 && arguments[0].equals("demo-values")) {
                new DataFolder(Path.of(arguments[1])).writeDemoValues();
            } else {
                errors.print(USAGE);
                return 2;
            }
            return 0;
        } catch (InputException e) {
            errors.println(e.getMessage());
        } catch (IOException e) {
            errors.println("rain-database: " + e);
        }
        return 1;
    }

    private static void build(DataFolder folder, Path target, PrintStream out) throws IOException, InputException {
        Map<Station, RainTable> tables = folder.rainTables();
        Optional<String> demo_note = folder.demoNote();
        RainDatabaseWriter.write(target, tables, demo_note);
        out.println(target + ": " + tables.size() + " stations"
                + (demo_note.isPresent() ? ", marked as demonstration values" : ""));
    }
}
