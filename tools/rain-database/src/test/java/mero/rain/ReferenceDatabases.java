// SPDX-License-Identifier: MIT
package mero.rain;

import com.healthmarketscience.jackcess.Column;
import com.healthmarketscience.jackcess.ColumnBuilder;
import com.healthmarketscience.jackcess.DataType;
import com.healthmarketscience.jackcess.Database;
import com.healthmarketscience.jackcess.DatabaseBuilder;
import com.healthmarketscience.jackcess.DateTimeType;
import com.healthmarketscience.jackcess.IndexBuilder;
import com.healthmarketscience.jackcess.Row;
import com.healthmarketscience.jackcess.Table;
import com.healthmarketscience.jackcess.TableBuilder;
import java.io.IOException;
import java.io.PrintStream;
import java.io.UncheckedIOException;
import java.math.BigDecimal;
import java.math.BigInteger;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Path;
import java.time.LocalDateTime;
import java.time.temporal.ChronoUnit;
import java.util.ArrayList;
import java.util.List;
import java.util.Random;
import java.util.Set;
import java.util.TreeSet;

/**
 * Writes random databases and, beside each, what Jackcess reads back from it: all types of columns, tables without
 * rows and with thousands, deleted and updated rows, columns added later, indexes, long names.
 */
public final class ReferenceDatabases {
    private static final LocalDateTime FIRST_DAY = LocalDateTime.of(1899, 12, 30, 0, 0);
    private static final List<DataType> TYPES = List.of(DataType.BYTE, DataType.INT, DataType.LONG, DataType.MONEY,
            DataType.FLOAT, DataType.DOUBLE, DataType.SHORT_DATE_TIME, DataType.TEXT, DataType.TEXT, DataType.NUMERIC,
            DataType.BOOLEAN, DataType.MEMO, DataType.OLE, DataType.GUID, DataType.BINARY);
    private static final String LETTERS = "abcXYZ 019_áčďéěíňóřšťúůýžŽ€漢字😀";

    private final Random random;

    private ReferenceDatabases(long seed) {
        random = new Random(seed);
    }

    /** Arguments: folder, number of databases, seed. */
    public static void main(String[] arguments) throws IOException {
        Path folder = Path.of(arguments[0]);
        int count = Integer.parseInt(arguments[1]);
        long seed = Long.parseLong(arguments[2]);
        for (int number = 0; number < count; ++number) {
            Path file = folder.resolve(number + ".mdb");
            new ReferenceDatabases(seed + number).write(file);
            dump(file, folder.resolve(number + ".txt"));
        }
    }

    private void write(Path file) throws IOException {
        Database.FileFormat format =
                random.nextBoolean() ? Database.FileFormat.V2000 : Database.FileFormat.V2003;
        try (Database database = new DatabaseBuilder(file).setFileFormat(format).setAutoSync(false).create()) {
            database.setDateTimeType(DateTimeType.LOCAL_DATE_TIME);
            int tables = random.nextInt(20) == 0 ? 60 + random.nextInt(200) : 1 + random.nextInt(6);
            for (int table = 0; table < tables; ++table) {
                // mdbtools does not find a table with a character beyond the first plane of Unicode.
                String name = name(random.nextInt(55)).replace("😀", "");
                writeTable(database, "T" + table + name, tables > 50 ? 3 : 400);
            }
        }
    }

    private void writeTable(Database database, String name, int mostRows) throws IOException {
        TableBuilder builder = new TableBuilder(name);
        int columns = random.nextInt(15) == 0 ? 100 + random.nextInt(100) : 1 + random.nextInt(12);
        for (int column = 0; column < columns; ++column) {
            builder.addColumn(column("C" + column + name(random.nextInt(20))));
        }
        if (random.nextInt(3) == 0) {
            builder.addColumn(new ColumnBuilder("key", DataType.LONG).setAutoNumber(true));
            builder.addIndex(new IndexBuilder(IndexBuilder.PRIMARY_KEY_NAME).addColumns("key").setPrimaryKey());
        }
        Table table = builder.toTable(database);
        addRows(table, columns > 50 ? 20 : random.nextInt(30) == 0 ? 3000 : random.nextInt(mostRows));
        change(table);
        if (random.nextInt(3) == 0) {
            // A column of fixed size would be laid over the others.
            new ColumnBuilder("added", DataType.TEXT).setLengthInUnits(50).addToTable(table);
            addRows(table, random.nextInt(10));
            change(table);
        }
    }

    private ColumnBuilder column(String name) {
        DataType type = TYPES.get(random.nextInt(TYPES.size()));
        ColumnBuilder column = new ColumnBuilder(name, type);
        if (type == DataType.TEXT) {
            column.setLengthInUnits(1 + random.nextInt(100)).setCompressedUnicode(random.nextBoolean());
        } else if (type == DataType.NUMERIC) {
            column.setPrecision(28).setScale(random.nextInt(10));
        } else if (type == DataType.BINARY) {
            column.setLength(20);
        }
        return column;
    }

    private void addRows(Table table, int count) throws IOException {
        List<Object[]> rows = new ArrayList<>();
        for (int row = 0; row < count; ++row) {
            rows.add(table.getColumns().stream().map(this::value).toArray());
        }
        table.addRows(rows);
    }

    /** Deletes and updates rows; a text that grows moves its row. */
    private void change(Table table) throws IOException {
        int deleted = random.nextInt(4);
        int updated = random.nextInt(4);
        List<Row> rows = new ArrayList<>();
        table.forEach(rows::add);
        for (Row row : rows) {
            int dice = random.nextInt(12);
            if (dice < deleted) {
                table.deleteRow(row);
            } else if (dice < deleted + updated) {
                for (Column column : table.getColumns()) {
                    if (!column.isAutoNumber() && random.nextBoolean()) {
                        row.put(column.getName(), value(column));
                    }
                }
                table.updateRow(row);
            }
        }
    }

    private Object value(Column column) {
        if (column.isAutoNumber()) {
            return Column.AUTO_NUMBER;
        }
        if (column.getType() != DataType.BOOLEAN && random.nextInt(8) == 0) {
            return null;
        }
        return switch (column.getType()) {
            case BYTE -> (byte) random.nextInt(256);
            case INT -> (short) random.nextInt(65536);
            case LONG -> random.nextInt();
            case MONEY -> new BigDecimal(BigInteger.valueOf(random.nextLong() >> random.nextInt(50)), 4);
            case FLOAT -> random.nextBoolean() ? random.nextFloat() * 500 : (float) random.nextGaussian() * 1e30f;
            case DOUBLE -> random.nextBoolean() ? random.nextDouble() * 500 : random.nextGaussian() * 1e300;
            case SHORT_DATE_TIME -> FIRST_DAY.plusSeconds((long) (random.nextDouble() * 4e9) + 86400);
            case TEXT -> name(random.nextInt(column.getLengthInUnits() + 1));
            case NUMERIC -> new BigDecimal(new BigInteger(80, random), column.getScale())
                    .multiply(BigDecimal.valueOf(random.nextBoolean() ? 1 : -1));
            case BOOLEAN -> random.nextBoolean();
            case MEMO -> name(random.nextInt(random.nextInt(10) == 0 ? 6000 : 60));
            case OLE -> new byte[random.nextInt(200)];
            case GUID -> new java.util.UUID(random.nextLong(), random.nextLong()).toString();
            case BINARY -> new byte[random.nextInt(20)];
            default -> throw new IllegalArgumentException(column.getType().toString());
        };
    }

    /** A text of that many UTF-16 units at most. */
    private String name(int length) {
        int[] letters = LETTERS.codePoints().toArray();
        boolean plain = random.nextBoolean();
        StringBuilder text = new StringBuilder();
        while (text.length() + 2 <= length) {
            text.appendCodePoint(letters[random.nextInt(plain ? 6 : letters.length)]);
        }
        return text.toString().strip();
    }

    private static void dump(Path file, Path target) throws IOException {
        try (Database database = new DatabaseBuilder(file).setReadOnly(true).open();
                PrintStream out = new PrintStream(Files.newOutputStream(target), false, StandardCharsets.UTF_8)) {
            database.setDateTimeType(DateTimeType.LOCAL_DATE_TIME);
            out.print("file " + file + "\n");
            Set<String> names = new TreeSet<>(database.getTableNames());
            for (String name : names) {
                dump(database.getTable(name), out);
            }
        }
    }

    private static void dump(Table table, PrintStream out) {
        out.print("table " + table.getName() + "\n");
        for (Column column : table.getColumns()) {
            out.print("column " + column.getName() + "\n");
        }
        for (Row row : table) {
            out.print("row");
            for (Column column : table.getColumns()) {
                try {
                    out.print("\t" + shown(column.getType(), column.getRowValue(row)));
                } catch (RuntimeException error) {
                    throw new UncheckedIOException(new IOException(column.getName(), error));
                }
            }
            out.print("\n");
        }
    }

    private static String shown(DataType type, Object value) {
        if (type == DataType.BOOLEAN) {
            return (Boolean) value ? "yes" : "no";
        }
        if (value == null) {
            return "-";
        }
        return switch (type) {
            case BYTE -> bits((Byte) value & 0xff);
            case INT, LONG, MONEY, FLOAT, DOUBLE, NUMERIC -> bits(((Number) value).doubleValue());
            case SHORT_DATE_TIME -> String.valueOf(seconds((LocalDateTime) value));
            case TEXT -> "'" + value;
            default -> "?";
        };
    }

    private static long seconds(LocalDateTime date) {
        return Math.round(ChronoUnit.MILLIS.between(FIRST_DAY, date) / 1000.0);
    }

    private static String bits(double value) {
        return String.format("%016x", Double.doubleToLongBits(value));
    }
}
