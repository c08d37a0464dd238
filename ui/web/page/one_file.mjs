// The page in one file starts here.
import * as files from "./embedded_files.mjs";
import { start } from "./start.mjs";

start(files);
