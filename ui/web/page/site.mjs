// The page of the site starts here.
import * as files from "./fetched_files.mjs";
import { start } from "./start.mjs";

start(files);
