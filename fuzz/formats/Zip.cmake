scrivel_fuzz(fuzz_zip FuzzZip.cpp LINKS scrivel_zip)
